#pragma once

#include "easel/window/Hand.h"

namespace easel::window {

/// The menus that there are. Plug-ins add to them through the host's groups.
enum class MenuPlace : std::uint8_t { File, Edit, View, Window, Help };

/// The menu bar: the window's own items, whose texts and states are whatever `update` says when a
/// menu opens, and behind them in each menu what plug-ins have put there.
class MenuBar {
public:
    MenuBar(Hand& hand, int firstCommand) : hand_(hand), firstCommand_(firstCommand) {}

    [[nodiscard]] HMENU open();
    [[nodiscard]] HMENU at(MenuPlace place) const;
    /// The user opens `menu`: plug-ins bring their items up to date.
    void refresh(HMENU menu);
    /// True when `command` is a plug-in's item, which is then chosen.
    bool choose(int command);

private:
    void appendGroup(HMENU menu, AIMenuGroup group, int depth);

    Hand& hand_;
    int firstCommand_;
    HMENU bar_ = nullptr;
    std::vector<AIMenuItemHandle> shown_; ///< By command.
    std::vector<int> ownCounts_;          ///< Items of the window's own, by menu.
};

} // namespace easel::window
