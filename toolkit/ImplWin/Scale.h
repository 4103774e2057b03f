#pragma once

/// The interface speaks of items in units of a display at 96 dots per inch; windows and pictures
/// are in pixels. Numbers are multiplied at that border and nowhere else.

#include <windows.h>

#include <algorithm>
#include <cmath>

namespace NRDM {

struct Scale {
    double factor = 1.0;
    int top = 0; ///< of the window in its dialog, in units: heights inside count from the dialog's

    [[nodiscard]] int toPixels(double units) const {
        return static_cast<int>(std::lround(units * factor));
    }
    [[nodiscard]] int toUnits(int pixels) const {
        return static_cast<int>(std::lround(pixels / factor));
    }

    /// The pixels between the window's top and a height `units` below it, rounded where the dialog
    /// counts from: heights that agree in units agree in pixels, whichever window they are in.
    [[nodiscard]] int heightToPixels(int units) const {
        return toPixels(top + units) - toPixels(top);
    }

    /// The thickness of a line of the interface: one pixel up to 1.5x, two at 2x.
    [[nodiscard]] int line() const { return std::max(1, static_cast<int>(factor)); }

    /// Corners are scaled, not sizes, so that neighbours stay neighbours.
    [[nodiscard]] RECT toPixels(const RECT& units) const {
        return {toPixels(units.left), toPixels(units.top), toPixels(units.right),
                toPixels(units.bottom)};
    }
    [[nodiscard]] RECT toUnits(const RECT& pixels) const {
        return {toUnits(pixels.left), toUnits(pixels.top), toUnits(pixels.right),
                toUnits(pixels.bottom)};
    }

    bool operator==(const Scale&) const = default;
};

/// The scale of the display that `window` is on; that of the system for a null window.
[[nodiscard]] Scale scaleOf(HWND window);

/// What a window with these styles takes up on the display of `neighbour` when its client area is
/// `client`.
[[nodiscard]] RECT withFrame(const RECT& client, DWORD style, DWORD extendedStyle, HWND neighbour);

} // namespace NRDM
