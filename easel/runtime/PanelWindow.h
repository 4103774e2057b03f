#pragma once

#include "host/Types.h"
#include "host/suites/AIPanelSuite.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace easel {

/// What the user does to a panel's window.
struct PanelWindowEvents {
    std::function<void(AISize)> resized;
    std::function<void()> closed;
    std::function<void()> cycled; ///< pressed the arrow that goes from state to state
    std::function<void()> flyout; ///< pressed the button of the flyout menu
};

/// Which buttons a panel has above its client area.
struct PanelButtons {
    bool states = false;
    bool flyout = false;
};

/// One line of a menu that pops up.
struct PopupLine {
    ai::uint32 id = 0;
    std::u32string text;
    bool isSeparator = false;
    bool enabled = true;
    bool marked = false;
    std::vector<PopupLine> submenu;
};

/// The window around a panel's client area. Where there are no windows it is nothing but a size.
class PanelWindow {
public:
    /// Hidden at first.
    PanelWindow(const std::u32string& title, AISize size, bool resizable, PanelWindowEvents events);
    ~PanelWindow();
    PanelWindow(const PanelWindow&) = delete;
    PanelWindow& operator=(const PanelWindow&) = delete;

    /// The client area, for the plug-in to put its own window in; null where there are none.
    [[nodiscard]] AIPanelPlatformWindow client() const noexcept;
    void setTitle(const std::u32string& title);
    void setSize(AISize size);
    void setButtons(PanelButtons buttons);
    void show(bool shown);
    /// Screen pixels.
    void move(AIPoint topLeft);
    /// Lets the user choose from a menu under the flyout button; 0: chose nothing.
    [[nodiscard]] ai::uint32 popUp(const std::vector<PopupLine>& lines);

private:
    struct System;
    std::unique_ptr<System> system_;
};

} // namespace easel
