#pragma once

#include "host/Types.h"
#include "host/suites/AIPanelSuite.h"

#include <functional>
#include <memory>
#include <string>

namespace easel {

/// What the user does to a panel's window.
struct PanelWindowEvents {
    std::function<void(AISize)> resized;
    std::function<void()> closed;
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
    void show(bool shown);
    /// Screen pixels.
    void move(AIPoint topLeft);

private:
    struct System;
    std::unique_ptr<System> system_;
};

} // namespace easel
