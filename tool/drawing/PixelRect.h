#pragma once

/// Rectangles of the view and what of a line lies in them. Coordinates are pixels, y DOWN: `top` is
/// the smaller number.

#include "host/Types.h"
#include "symmetry/geometry/Geometry.h"

#include <optional>

namespace facetta {

struct PixelRect {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};

[[nodiscard]] constexpr PixelRect widen(const AIRect& rect) {
    return {static_cast<double>(rect.left), static_cast<double>(rect.top),
            static_cast<double>(rect.right), static_cast<double>(rect.bottom)};
}

[[nodiscard]] constexpr PixelRect grown(const PixelRect& rect, double by) {
    return {rect.left - by, rect.top - by, rect.right + by, rect.bottom + by};
}

[[nodiscard]] constexpr AIRect grown(const AIRect& rect, ai::int32 by) {
    return {rect.left - by, rect.top - by, rect.right + by, rect.bottom + by};
}

/// The edge belongs to the rectangle.
[[nodiscard]] constexpr bool contains(const PixelRect& rect, Point point) {
    return point.x >= rect.left && point.x <= rect.right && point.y >= rect.top &&
           point.y <= rect.bottom;
}

/// The part of `segment` inside `rect`; none when it misses it.
[[nodiscard]] std::optional<LineSegment> clipped(const LineSegment& segment, const PixelRect& rect);

/// The nearest pixel. What is too far away for the host's numbers becomes merely far away.
[[nodiscard]] AIPoint nearestPixel(Point pixels);

} // namespace facetta
