#pragma once

#include "easel/document/Document.h"
#include "easel/document/Session.h"
#include "easel/runtime/Annotators.h"
#include "easel/runtime/Contexts.h"
#include "easel/runtime/CursorSnap.h"
#include "easel/runtime/Drawer.h"
#include "easel/runtime/Menus.h"
#include "easel/runtime/Notifiers.h"
#include "easel/runtime/Panels.h"
#include "easel/runtime/Pen.h"
#include "easel/runtime/Plugin.h"
#include "easel/runtime/Preferences.h"
#include "easel/runtime/Timers.h"
#include "easel/runtime/Tools.h"
#include "easel/runtime/UserRecord.h"
#include "easel/runtime/Views.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace easel {

class SuiteServer;

/// A message that was sent, and what the plug-in answered.
struct SentMessage {
    std::string plugin;
    std::string caller;
    std::string selector;
    std::string detail; ///< Of a notification its type, of a menu message the item's name.
    SPErr result;
};

struct HostSettings {
    /// Refuses suites, but for memory blocks, while a plug-in answers "SP Access" messages, as a
    /// real host may where the suites' own plug-ins are not loaded yet.
    bool strictAccessMessages = false;
    /// Keeps every message sent in `Host::sent`; otherwise only those that failed.
    bool recordMessages = false;
};

/// What the user does with the mouse.
struct MousePoint {
    AIRealPoint at;                ///< Soft coordinates.
    ai::uint16 modifiers = 0;      ///< `AIEventModifiers`, the mouse button left out.
    AIToolPressure pressure = 127; ///< Of a pen, 0..255; this is a mouse.
};

/// The host as its plug-ins meet it, from launch to quit. One exists at a time, because the suites
/// are plain functions that carry nothing with them.
///
///   1. `addPlugin` for each, then `start`: load, start up, notify.
///   2. Whatever the user does is one of the functions below. Each sends its messages at once and
///      ends with `idle`, which sends what has queued up meanwhile.
///   3. `quit`: notify, shut down, unload.
///
/// Faults of a plug-in (a start-up that fails, contexts that do not balance, references kept or
/// released twice) are lines in the ledger's `problems`, and the session goes on.
class Host {
public:
    /// Offers the suites of `server`, which outlives it.
    explicit Host(SuiteServer& server, HostSettings hostSettings = {});
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Every plug-in that `file` holds. Throws `ai::Error` as `describePlugins`.
    void addPlugins(const std::filesystem::path& file);
    /// One whose entry is a function of this program.
    SPPluginRef addPlugin(std::string name, SPPluginEntryFunc entry);
    [[nodiscard]] SPPluginRef pluginNamed(std::string_view name) const;

    void start();
    void quit();
    /// Unloads the library and loads it again at another address, as a host short of memory does.
    /// Throws '!Rel' while its access count is not zero, unless it is to be `evenIfHeld`.
    void reload(SPPluginRef plugin, bool evenIfHeld = false);
    /// Loads the library unless it is loaded. Throws `ai::Error` '!Acq'.
    void load(SPPluginRef plugin, ai::int32 when);

    /// Sends `message`, whose first member is its `SPMessageData`, and takes the globals back. May
    /// be nested: a plug-in's own call may make the host send to it or to another. `detail` is for
    /// the record only.
    template <typename Message>
    SPErr send(SPPluginRef plugin, const char* caller, const char* selector, Message& message,
               std::string_view detail = {}, AIUndoContextKind kind = kStandardUndoContext) {
        return sendData(plugin, caller, selector, message.d, detail, kind);
    }
    void fillMessage(SPPluginRef plugin, SPMessageData& message) const;

    /// Sends a notification at once to every active registration of that type.
    void notify(std::string_view type, void* data = nullptr);
    /// Lets it wait until the host is idle.
    void queue(std::string_view type) { queue_.add(type); }
    /// Tells what has changed and runs timers that are due. Notifications may raise others; after
    /// `kIdleRounds` rounds that is taken for an endless loop: a problem, and the rest is dropped.
    void idle();
    static constexpr int kIdleRounds = 20;

    // Documents
    Document& open(std::unique_ptr<Document> document);
    void close(Document& document);
    void activate(Document& document);
    [[nodiscard]] const std::vector<std::unique_ptr<Document>>& documents() const noexcept {
        return documents_;
    }
    /// Tells that the current document is about to be written; what plug-ins change then is saved.
    void beforeSaving();
    void afterSaving();
    /// False when there was nothing to undo.
    bool undo();
    bool redo();
    /// What the Undo item of the menu would say.
    [[nodiscard]] std::string undoText() const;
    /// What the user does to the document without any plug-in: one undo step with that menu text.
    /// Choosing what is selected is a silent one.
    void edit(const std::string& undoText, const std::function<void(Document&)>& change,
              AIUndoContextKind kind = kStandardUndoContext);

    // Menus
    /// The user opens the menu bar: items that want to are asked to bring themselves up to date.
    void openMenus();
    /// Nothing happens to a disabled item.
    void chooseMenuItem(AIMenuItemHandle item);

    // Panels
    void showPanel(AIPanelRef panel, bool shown);
    void closePanel(AIPanelRef panel);
    void resizePanel(AIPanelRef panel, AISize size);
    /// The arrow in the panel's title: from state to state and round.
    void cyclePanel(AIPanelRef panel);
    /// The menu as the plug-in has brought it up to date. Throws 'INVD' when the panel has none.
    const FlyoutMenu& openFlyout(AIPanelRef panel);
    /// Opens the flyout menu and chooses the item, or nothing when it cannot be chosen.
    void chooseFlyoutItem(AIPanelRef panel, ai::uint32 id);
    /// Lets the one before the screen choose; without a screen nothing is chosen.
    void pressFlyout(AIPanelRef panel);
    void setInterfaceDark(bool dark);

    // Tools
    /// Null chooses the built-in tool `builtIn`.
    void selectTool(AIToolHandle tool, AIToolType builtIn = Tools::kSelectTool);
    /// The button is up.
    void track(const MousePoint& mouse);
    /// From `press` to `release` is one gesture and one undo step.
    void press(const MousePoint& mouse);
    void drag(const MousePoint& mouse);
    void release(const MousePoint& mouse);
    /// The user ends the path that the pen is drawing; tools are told to forget what they drew.
    void endPath();
    /// A double click on the tool's icon.
    void editToolOptions();
    void decreaseDiameter();
    void increaseDiameter();

    // The window
    void zoom(AIReal factor);
    /// What lies in the middle of the window; soft coordinates.
    void centreOn(AIRealPoint centre);
    /// In pixels; what lay in the middle stays there.
    void resizeView(ai::int32 width, ai::int32 height);
    void setDarkTheme(bool dark);
    /// Degrees; what Shift and the host's own tools go by.
    void setConstrainAngle(double degrees);
    /// Queues what a view that has moved or changed its size on screen leads to.
    void noteViewMoved();
    /// The window no longer shows what there is; it will be painted when there is time.
    void redrawLater() noexcept { stale_ = true; }
    [[nodiscard]] bool needsRedraw() const noexcept {
        return stale_ || !annotators.invalid.empty();
    }

    // Annotations
    /// Asks all active annotators to draw into `view`; then nothing needs to be redrawn.
    [[nodiscard]] DisplayList drawAnnotations(AIDocumentViewHandle view);
    void invalidateAnnotations(AIDocumentViewHandle view);

    [[nodiscard]] AIDocumentViewHandle currentView() const;
    /// Null means the current view. Throws 'DOC?' when there is none, 'PARM' for a dead one.
    [[nodiscard]] DocumentView& view(AIDocumentViewHandle view) const;

    /// The plug-in that is answering a message; null while none is.
    [[nodiscard]] SPPluginRef currentPlugin() const noexcept { return currentPlugin_; }
    void setCurrentPlugin(SPPluginRef plugin) noexcept { currentPlugin_ = plugin; }
    [[nodiscard]] bool inAccessMessage() const noexcept { return inAccessMessage_; }
    /// Is a menu item being asked to bring itself up to date?
    [[nodiscard]] bool updatingMenus() const noexcept { return updatingMenus_; }
    /// Queues notifications of what has changed in the documents.
    void collectChanges();
    /// What is still lent, a line each, and what was not released in time.
    [[nodiscard]] std::vector<std::string> complaints() const;

    SuiteServer& suites;
    HostSettings settings;
    Plugins plugins;
    Notifiers notifiers;
    Menus menus;
    Tools tools;
    Timers timers;
    Annotators annotators;
    Panels panels;
    Preferences preferences;
    Contexts contexts;
    Views views;
    CursorSnap cursorSnap;
    UserRecord user;
    Clock clock;
    std::vector<SentMessage> sent;

private:
    SPErr sendData(SPPluginRef plugin, const char* caller, const char* selector,
                   SPMessageData& message, std::string_view detail, AIUndoContextKind kind);
    SPErr callEntry(Plugin& plugin, const char* caller, const char* selector,
                    SPMessageData& message);
    void sendAccess(SPPluginRef plugin, const char* selector, ai::int32 when);
    void startUp(SPPluginRef plugin);
    void unload(SPPluginRef plugin, ai::int32 when);
    void forgetRegistrations(SPPluginRef plugin);
    /// Nothing happens when the tool is null or gone.
    void sendTool(const char* selector, AIToolHandle tool, const MousePoint* mouse,
                  ai::uint16 what = 0);
    void endGesture();
    void runTimers();
    [[nodiscard]] AIMenuMessage menuMessage(AIMenuItemHandle item) const;

    void pressPen(const MousePoint& mouse);

    std::vector<std::unique_ptr<Document>> documents_;
    NotificationQueue queue_;
    std::vector<std::string> late_; ///< To be sent when the host is idle the next time.
    Pen pen_;
    SPPluginRef currentPlugin_ = nullptr;
    AIAppContextHandle gesture_ = nullptr; ///< The context that spans press to release.
    AIToolHandle gestureTool_ = nullptr;   ///< Null in a gesture of the host's own pen.
    bool inAccessMessage_ = false;
    bool updatingMenus_ = false;
    bool inIdle_ = false;
    bool stale_ = false;
};

/// The host that is running. There must be one.
[[nodiscard]] Host& host() noexcept;

/// "'S!Fd'" for a code of four characters, else the number.
[[nodiscard]] std::string codeText(AIErr code);

} // namespace easel
