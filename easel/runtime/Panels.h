#pragma once

#include "easel/core/Registry.h"
#include "easel/runtime/PanelWindow.h"
#include "host/Handles.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace easel {

struct FlyoutMenu {
    SPPluginRef plugin = nullptr; ///< That was answering when it was made; null: none was.
    std::vector<FlyoutItem> items;
};

/// What a plug-in wants to be told of its panel; null: nothing.
struct PanelCallbacks {
    AIPanelFlyoutMenuPreVisibilityProc flyoutOpens = nullptr;
    AIPanelFlyoutMenuProc flyoutChosen = nullptr;
    AIPanelVisibilityChangedNotifyProc visibility = nullptr;
    AIPanelSizeChangedNotifyProc size = nullptr;
    AIPanelStateChangedNotifyProc state = nullptr;
};

struct Panel {
    SPPluginRef plugin = nullptr;
    std::u32string id; ///< Its unique name.
    std::u32string title;
    AISize size{}; ///< Of its client area, in pixels; the user cannot change it.
    ai::int16 stateCount = 1;
    ai::int16 state = 1;
    AIBoolean shown = 0;
    AIPoint position{100, 100};
    AIPanelFlyoutMenuRef flyout = nullptr;
    PanelCallbacks callbacks;
    std::unique_ptr<PanelWindow> window;
};

/// The panels of all plug-ins, and their flyout menus.
///
/// The interface does not say whether a plug-in is told of changes that it makes itself. Here it is
/// told, of each one that changes something: whoever can stand that can stand the other as well.
class Panels {
public:
    /// `userHasActed` is called after whatever the user does to a panel's window.
    explicit Panels(std::function<void()> userHasActed) : userHasActed_(std::move(userHasActed)) {}

    /// Hidden, in state 1. Throws 'PARM' when its numbers make no sense or a panel of that id
    /// exists.
    AIPanelRef add(Panel panel);
    void remove(AIPanelRef panel);
    /// Throws 'INVD'.
    [[nodiscard]] Panel& at(AIPanelRef panel) const;
    /// Null when there is none.
    [[nodiscard]] AIPanelRef named(const std::u32string& id) const;
    [[nodiscard]] const Registry<AIPanelRef, Panel>& all() const noexcept { return panels_; }

    AIPanelFlyoutMenuRef addMenu(SPPluginRef plugin) { return menus_.add({plugin, {}}); }
    /// Panels that showed it have none from then on.
    void removeMenu(AIPanelFlyoutMenuRef menu);
    /// Throws 'INVD'.
    [[nodiscard]] FlyoutMenu& menu(AIPanelFlyoutMenuRef menu) const;

    // Each tells the plug-in when it changes something.
    void show(AIPanelRef panel, bool shown);
    void resize(AIPanelRef panel, AISize size);
    /// Throws 'PARM' unless it is one of the panel's states.
    void setState(AIPanelRef panel, ai::int16 state);
    /// The arrow in the panel's title: from state to state and round.
    void cycle(AIPanelRef panel);
    void setFlyout(AIPanelRef panel, AIPanelFlyoutMenuRef menu);

    /// The menu as the plug-in has brought it up to date. Throws 'INVD' when the panel has none.
    const FlyoutMenu& openFlyout(AIPanelRef panel);
    /// The open menu closes: tells what was chosen, or nothing when that cannot be.
    void chooseFromFlyout(AIPanelRef panel, ai::uint32 id);

    PanelDock dock; ///< Of the panels that are made from now on.
    /// Hears what the user does to a panel's window, in a script's words, before it is done.
    std::function<void(const std::string& deed)> overhears;

    /// What a plug-in leaves behind at its end is gone; a line for each.
    std::vector<std::string> removeAllOf(SPPluginRef plugin);

private:
    template <typename Act> void act(const std::string& deed, Act act) {
        if (overhears && !deed.empty()) overhears(deed);
        act();
        userHasActed_();
    }
    /// The user opens the flyout menu on the screen and chooses, or chooses nothing.
    void chooseOnScreen(AIPanelRef panel);

    std::function<void()> userHasActed_;
    Registry<AIPanelRef, Panel> panels_;
    Registry<AIPanelFlyoutMenuRef, FlyoutMenu> menus_;
};

} // namespace easel
