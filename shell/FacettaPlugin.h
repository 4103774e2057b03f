#pragma once

#include "shell/Menus.h"
#include "shell/Notifications.h"
#include "shell/Plugin.h"
#include "tool/CurrentView.h"
#include "tool/Licensing.h"
#include "tool/Preferences.h"
#include "tool/ToolState.h"

namespace facetta {

/// The plug-in object: everything that Facetta knows between two messages. One exists while the
/// plug-in is started, in memory of the host's, because it outlives the library being loaded again.
class FacettaPlugin final : public Plugin {
public:
    FacettaPlugin(SPPluginRef self, const Licensing& licensing) noexcept
        : Plugin(self), licence(licensing) {}
    ~FacettaPlugin() override;

    /// Throws `std::bad_alloc` when the host has no memory.
    static void* operator new(std::size_t size);
    static void operator delete(void* object) noexcept;

    AIErr Startup(SPInterfaceMessage& message) override;
    AIErr Shutdown(SPInterfaceMessage& message) override;
    AIErr Message(std::string_view caller, std::string_view selector, void* message) override;
    AIErr SetGlobal(Plugin* plugin) override;
    AIErr Notify(AINotifierMessage& message) override;
    AIErr GoMenuItem(AIMenuMessage& message) override;
    AIErr UpdateMenuItem(AIMenuMessage& message) override;
    AIErr GoTimer(AITimerMessage& message) override;

    Licensing licence;
    bool licenceChanged = false;      ///< since start-up
    Preferences preferences;          ///< changed by the tool, the panel and the dialogs
    HostPreferences hostPreferences;  ///< follows the host's notifications
    char16_t decimalSeparator = u'.'; ///< of number fields; as the user's locale has it
    CurrentView view;                 ///< follows the host's notifications
    ToolState tool;

    // What the host knows of the plug-in; null where registering failed.
    MenuItems menuItems;
    NotifierHandles notifiers{};
    AIAnnotatorHandle annotator = nullptr;
    AIToolHandle toolHandle = nullptr;

private:
    void startProduct();
    bool addAnnotator();
    bool addTool();
};

/// The live plug-in object; null before start-up, after shut-down and while the library is being
/// reloaded. Written by `FacettaPlugin` only.
extern FacettaPlugin* thePlugin;

} // namespace facetta
