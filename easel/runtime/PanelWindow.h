#pragma once

#include "host/Types.h"
#include "host/suites/AIPanelFlyoutMenuSuite.h"
#include "host/suites/AIPanelSuite.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace easel {

/// What the user does to a panel's window.
struct PanelWindowEvents {
    std::function<void()> closed;
    std::function<void()> cycled; ///< pressed the arrow that goes from state to state
    std::function<void()> flyout; ///< pressed the button of the flyout menu
};

/// Which buttons a panel has above its client area.
struct PanelButtons {
    bool states = false;
    bool flyout = false;
};

/// One line of the menu that pops up under the flyout button.
struct FlyoutItem {
    ai::uint32 id = 0;
    std::u32string text;
    bool isSeparator = false;
    AIBoolean enabled = 1;
    AIPanelFlyoutMenuItemMark mark = AIPanelFlyoutMenuItemMark::None;
};

/// Where panels lie in the host's own window; without one they float.
struct PanelDock {
    AIPanelPlatformWindow window = nullptr;
    std::function<void()> changed; ///< A panel is shown or hidden, or has another size.
};

/// The window around a panel's client area. Where there are no windows it is nothing but a size.
class PanelWindow {
public:
    /// Hidden at first. `dock` outlives it.
    PanelWindow(const std::u32string& title, AISize size, PanelWindowEvents events,
                const PanelDock& dock);
    ~PanelWindow();
    PanelWindow(const PanelWindow&) = delete;
    PanelWindow& operator=(const PanelWindow&) = delete;

    /// The client area, for the plug-in to put its own window in; null where there are none.
    [[nodiscard]] AIPanelPlatformWindow client() const noexcept;
    void setTitle(const std::u32string& title);
    void setSize(AISize size);
    void setButtons(PanelButtons buttons);
    void show(bool shown);
    /// Screen pixels; a panel in a dock lies where the dock puts it.
    void move(AIPoint topLeft);
    /// Lets the user choose from a menu under the flyout button; 0: chose nothing.
    [[nodiscard]] ai::uint32 popUp(const std::vector<FlyoutItem>& items);

private:
    struct System;
    std::unique_ptr<System> system_;
};

} // namespace easel
