#pragma once

#include "shell/Menus.h"
#include "shell/Notifications.h"
#include "shell/Plugin.h"
#include "shell/RegenerationWatch.h"
#include "symmetry/LiveLayers.h"
#include "tool/CurrentView.h"
#include "tool/Licensing.h"
#include "tool/ModalDialogs.h"
#include "tool/Preferences.h"
#include "tool/ToolSession.h"
#include "tool/drawing/HintTimer.h"
#include "ui/SymmetryPanel.h"

#include <optional>
#include <string_view>

namespace facetta {

/// The plug-in object: everything that Facetta knows between two messages. One exists while the
/// plug-in is started, in memory of the host's, because it outlives the library being loaded again.
class FacettaPlugin final : public Plugin {
public:
    FacettaPlugin(SPPluginRef self, const Licensing& licensing) noexcept
        : Plugin(self), licence(&licensing) {}
    ~FacettaPlugin() override;

    /// Throws `std::bad_alloc` when the host has no memory.
    static void* operator new(std::size_t size);
    static void operator delete(void* object) noexcept;

    void ReportError(AIErr error, std::string_view caller, std::string_view selector,
                     void* message) override;
    AIErr Startup(SPInterfaceMessage& message) override;
    /// While the plug-in is in use (`PluginInUse`) nothing but windows, timers and settings goes
    /// yet.
    AIErr Shutdown(SPInterfaceMessage& message) override;
    AIErr Message(std::string_view caller, std::string_view selector, void* message) override;
    AIErr SetGlobal(Plugin* plugin) override;
    AIErr SuitesReadyHook() override;
    AIErr UnloadHook() override;
    AIErr Notify(AINotifierMessage& message) override;
    AIErr GoMenuItem(AIMenuMessage& message) override;
    AIErr UpdateMenuItem(AIMenuMessage& message) override;
    AIErr EditTool(AIToolMessage& message) override;
    AIErr TrackToolCursor(AIToolMessage& message) override;
    AIErr ToolMouseDown(AIToolMessage& message) override;
    AIErr ToolMouseDrag(AIToolMessage& message) override;
    AIErr ToolMouseUp(AIToolMessage& message) override;
    AIErr SelectTool(AIToolMessage& message) override;
    AIErr DeselectTool(AIToolMessage& message) override;
    AIErr DecreaseDiameter(AIToolMessage& message) override;
    AIErr IncreaseDiameter(AIToolMessage& message) override;
    AIErr AnnotatorDraw(AIAnnotatorMessage& message) override;
    AIErr AnnotatorInvalidate(AIAnnotatorMessage& message) override;
    AIErr GoTimer(AITimerMessage& message) override;

    /// What the tool's room takes from the plug-in for one message; `keys` must outlive it.
    [[nodiscard]] ToolSession toolSession(const platform::KeyState& keys);

    /// What the symmetry room takes from the plug-in for one message.
    [[nodiscard]] MirrorEnvironment mirroring();

    /// Notices that another document or view has become the current one: the view and the axes
    /// shown become those of the new one. Changes no art, does nothing when both are as they were,
    /// and so may be called at any time.
    void followDocument();
    /// What the licence allows may be something else now.
    void licenceHasChanged();
    /// No view while the host cannot tell it.
    void fetchView();
    void fetchViewAndPlaceDialog();

    const Licensing* licence;         ///< never null; an object of the library, set by the entry
    bool licenceChanged = false;      ///< since the about box was opened last
    Preferences preferences;          ///< changed by the tool, the panel and the dialogs
    HostPreferences hostPreferences;  ///< follows the host's notifications
    char16_t decimalSeparator = u'.'; ///< of number fields; as the user's locale has it
    CurrentView view;                 ///< follows the host's notifications
    ToolState tool;
    SymmetryAxes copiedAxes; ///< by the panel's menu; none when their count is 0
    LiveLayerMemory liveLayers;
    RegenerationWatch regenerationWatch;
    HintTimer hintTimer;
    // Functions of the library, set again after a reload.
    ModalDialogs dialogs;
    /// Called when the axes shown, or what can be done with them, have changed; set by the panel.
    void (*updatePanel)() = [] {};

    // What the host knows of the plug-in; null where registering failed.
    MenuItems menuItems;
    NotifierHandles notifiers{};
    AIAnnotatorHandle annotator = nullptr;
    AIToolHandle toolHandle = nullptr;
    std::optional<SymmetryPanel> panel;

    [[nodiscard]] bool isInUse() const noexcept { return uses_ > 0; }
    /// It has been shut down while in use.
    [[nodiscard]] bool endsAfterUse() const noexcept { return endsAfterUse_; }

private:
    friend class PluginInUse;

    /// What becomes of the panel, whose windows call into the library, when that is loaded again.
    enum class PanelAfterReload { None, Hidden, Shown };

    /// Runs `handler` on the tool's state and what the plug-in lends it for one message.
    template <typename Handler> AIErr withSession(Handler handler);
    /// The same for a message to our tool; messages to others are none of ours.
    template <typename Handler> AIErr withTool(const AIToolMessage& message, Handler handler);

    /// Brings live layers up to date when the message may follow a change of the document.
    void followChanges(std::string_view caller, const void* message);
    void mirrorChangedLayers(Pen pen);

    void startProduct();
    bool addAnnotator();
    bool addTool();
    void openPanel();
    static void refreshPanel();
    void closePanel() noexcept;
    void releaseLibrary() noexcept;
    void togglePanel() noexcept;
    AIErr saveSettings();
    /// The last part of shutting down.
    AIErr end();

    int uses_ = 0;
    bool endsAfterUse_ = false;
    bool settingsLoaded_ = false; ///< only what was read is written back
    bool holdsLibrary_ = false;   ///< on behalf of the panel
    bool mirrorsLayers_ = false;  ///< Messages that regenerating brings about regenerate nothing.
    PanelAfterReload panelAfterReload_ = PanelAfterReload::None;
};

/// Keeps the plug-in while a handler of its runs. The host may shut it down meanwhile, from the
/// loop of a dialog that the handler has opened: on its way out the handler still finds everything
/// that it works on, and after the outermost one the plug-in is deleted.
class PluginInUse {
public:
    explicit PluginInUse(FacettaPlugin& plugin) noexcept : plugin_(plugin) { ++plugin_.uses_; }
    ~PluginInUse();
    PluginInUse(const PluginInUse&) = delete;
    PluginInUse& operator=(const PluginInUse&) = delete;

private:
    FacettaPlugin& plugin_;
};

/// The live plug-in object; null before start-up, after shut-down and while the library is being
/// reloaded. Written by `FacettaPlugin` only.
extern FacettaPlugin* thePlugin; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

} // namespace facetta
