#pragma once

#include "easel/document/Session.h"
#include "easel/runtime/Annotators.h"
#include "easel/runtime/Contexts.h"
#include "easel/runtime/CursorSnap.h"
#include "easel/runtime/Documents.h"
#include "easel/runtime/Menus.h"
#include "easel/runtime/Notifiers.h"
#include "easel/runtime/Panels.h"
#include "easel/runtime/Plugin.h"
#include "easel/runtime/Preferences.h"
#include "easel/runtime/Sender.h"
#include "easel/runtime/Timers.h"
#include "easel/runtime/Tools.h"
#include "easel/runtime/UserRecord.h"
#include "easel/runtime/Views.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace easel {

struct HostSettings {
    /// Refuses suites, but for memory blocks, while a plug-in answers "SP Access" messages, as a
    /// real host may where the suites' own plug-ins are not loaded yet.
    bool strictAccessMessages = false;
    /// Keeps every message sent in `Host::sent`; otherwise only those that failed.
    bool recordMessages = false;
};

/// The host as its plug-ins meet it, from launch to quit. A session has one at a time.
///
///   1. `addPlugin` for each, then `start`: load, start up, notify.
///   2. Whatever the user does is one of the functions below. Each lets the part of the host that
///      knows how act at once, and ends with `idle`, which sends what has queued up meanwhile.
///   3. `quit`: notify, shut down, unload.
///
/// Faults of a plug-in (a start-up that fails, contexts that do not balance, references kept or
/// released twice) are lines in the ledger's `problems`, and the session goes on.
class Host {
public:
    /// Offers the suites of `itsSession`, which outlives it.
    explicit Host(Session& itsSession, HostSettings hostSettings = {});
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    void addPlugins(const std::filesystem::path& file) { plugins.addLibrary(file); }
    SPPluginRef addPlugin(std::string name, SPPluginEntryFunc entry) {
        return plugins.addEntry(std::move(name), entry);
    }
    void start();
    void quit();
    void reload(SPPluginRef plugin, bool evenIfHeld = false) {
        plugins.reload(sender, plugin, evenIfHeld);
    }

    template <typename Message>
    SPErr send(SPPluginRef plugin, const char* caller, const char* selector, Message& message) {
        return sender.send(plugin, caller, selector, message);
    }
    void notify(std::string_view type, void* data = nullptr) { notifiers.notify(type, data); }
    /// Tells what has changed, runs timers that are due, and sends what has queued up.
    void idle();

    // Documents
    Document& open(std::unique_ptr<Document> document);
    void close(Document& document);
    void activate(Document& document);
    [[nodiscard]] const std::vector<std::unique_ptr<Document>>& documents() const noexcept {
        return documents_.all();
    }
    void beforeSaving() { documents_.beforeSaving(); }
    void afterSaving() { act(&Documents::afterSaving, documents_); }
    /// False when there was nothing to undo.
    bool undo() { return act(&Documents::undo, documents_); }
    bool redo() { return act(&Documents::redo, documents_); }
    /// What the Undo item of the menu would say.
    [[nodiscard]] std::string undoText() const;
    void edit(const std::string& undoText, const std::function<void(Document&)>& change,
              AIUndoContextKind kind = kStandardUndoContext) {
        act(&Documents::edit, documents_, undoText, change, kind);
    }

    // Menus and panels
    void openMenus() { act(&Menus::open, menus, sender); }
    void chooseMenuItem(AIMenuItemHandle item) { act(&Menus::choose, menus, sender, item); }
    void showPanel(AIPanelRef panel, bool shown) { act(&Panels::show, panels, panel, shown); }
    void cyclePanel(AIPanelRef panel) { act(&Panels::cycle, panels, panel); }
    /// The menu as the plug-in has brought it up to date. Throws 'INVD' when the panel has none.
    const FlyoutMenu& openFlyout(AIPanelRef panel) { return panels.openFlyout(panel); }
    /// Opens the flyout menu and chooses the item, or nothing when it cannot be chosen.
    void chooseFlyoutItem(AIPanelRef panel, ai::uint32 id);

    // Tools: see `Tools`
    void selectTool(AIToolHandle tool, AIToolType builtIn = Tools::kSelectTool) {
        act(&Tools::select, tools, tool, builtIn);
    }
    void track(const MousePoint& mouse) { act(&Tools::track, tools, mouse); }
    void press(const MousePoint& mouse) { gesture(&Tools::press, mouse); }
    void drag(const MousePoint& mouse) { gesture(&Tools::drag, mouse); }
    void release(const MousePoint& mouse) { act(&Tools::release, tools, mouse); }
    void endPath() { act(&Tools::endPath, tools); }
    void editToolOptions() { act(&Tools::editOptions, tools); }
    void decreaseDiameter() { act(&Tools::decreaseDiameter, tools); }
    void increaseDiameter() { act(&Tools::increaseDiameter, tools); }

    // The window
    void zoom(AIReal factor);
    /// What lies in the middle of the window; soft coordinates.
    void centreOn(AIRealPoint centre);
    /// In pixels; what lay in the middle stays there.
    void resizeView(ai::int32 width, ai::int32 height);
    void setDarkTheme(bool dark);
    /// Degrees; what Shift and the host's own tools go by.
    void setConstrainAngle(double degrees);
    /// The window no longer shows what there is; it will be painted when there is time.
    void redrawLater() noexcept {
        stale_ = true;
        ++pageVersion_;
    }
    /// Everything is to be painted anew, not only the areas that annotators have invalidated.
    [[nodiscard]] bool isStale() const noexcept { return stale_; }
    /// Counts the changes of what lies below the annotations: art, view, theme.
    [[nodiscard]] std::uint64_t pageVersion() const noexcept { return pageVersion_; }
    [[nodiscard]] bool needsRedraw() const noexcept {
        return stale_ || !annotators.invalid.empty();
    }
    /// Asks all active annotators to draw into `view`; then nothing needs to be redrawn.
    [[nodiscard]] DisplayList drawAnnotations(AIDocumentViewHandle view);
    [[nodiscard]] AIDocumentViewHandle currentView() const { return views.current(); }
    [[nodiscard]] DocumentView& view(AIDocumentViewHandle handle) const {
        return views.shown(handle);
    }

    /// Queues notifications of what has changed in the documents.
    void collectChanges();
    /// What is still lent, a line each, and what was not released in time.
    [[nodiscard]] std::vector<std::string> complaints() const;

    Session& session;
    HostSettings settings;
    Plugins plugins;
    Contexts contexts;
    Sender sender;
    Notifiers notifiers;
    Views views;
    Clock clock;
    Timers timers;
    Menus menus;
    Panels panels;
    Tools tools;
    Annotators annotators;
    Preferences preferences;
    CursorSnap cursorSnap;
    UserRecord user;
    std::vector<SentMessage>& sent; ///< Of `sender`.

private:
    /// What the user does with a part of the host, and what comes of it.
    template <typename Deed, typename Part, typename... Arguments>
    std::invoke_result_t<Deed, Part&, Arguments&...> act(Deed deed, Part& part,
                                                         Arguments&&... arguments) {
        if constexpr (std::is_void_v<decltype(std::invoke(deed, part, arguments...))>) {
            std::invoke(deed, part, arguments...);
            idle();
        } else {
            const auto result = std::invoke(deed, part, arguments...);
            idle();
            return result;
        }
    }
    /// A part of what the user does with the mouse: notifications wait for its end, but what has
    /// become of the drawing is seen.
    void gesture(void (Tools::*deed)(const MousePoint&), const MousePoint& mouse) {
        const std::pair before{session.lastStamp, session.exchanges};
        (tools.*deed)(mouse);
        if (before != std::pair{session.lastStamp, session.exchanges}) redrawLater();
        stale_ = stale_ || tools.marquee();
    }
    void noteViewMoved();
    void forgetRegistrations(SPPluginRef plugin);

    Documents documents_;
    bool inIdle_ = false;
    bool stale_ = false;
    std::uint64_t pageVersion_ = 0;
};

} // namespace easel
