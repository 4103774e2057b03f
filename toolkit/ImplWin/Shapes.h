#pragma once

/// Round shapes with smooth edges, drawn on the pixels themselves: how much of a pixel a shape
/// covers is told by the signed distance of the pixel's centre from the shape's outline. That is
/// exact enough for radii above a pixel, and the same wherever the toolkit runs.
///
/// Coordinates are pixels, x to the right, y down, whole numbers between pixels. What lies outside
/// the surface is left out.

#include "toolkit/ImplCommon/Colour.h"
#include "toolkit/ImplWin/Surface.h"

#include <span>

namespace NRDM {

struct Spot {
    double x = 0;
    double y = 0;
};

struct Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

[[nodiscard]] inline Box toBox(const RECT& rect) {
    return {static_cast<double>(rect.left), static_cast<double>(rect.top),
            static_cast<double>(rect.right), static_cast<double>(rect.bottom)};
}

/// `box` with every side moved inwards.
[[nodiscard]] constexpr Box inset(Box box, double by) {
    return {box.left + by, box.top + by, box.right - by, box.bottom - by};
}

/// A rectangle with round corners; half its height as the radius makes a pill, or a disc.
void fillRound(Surface& surface, Box box, double radius, Colour colour);

/// The outline of such a rectangle, `width` wide and wholly inside `box`.
void strokeRound(Surface& surface, Box box, double radius, double width, Colour colour);

/// Lines from point to point with round ends and corners.
void strokeLines(Surface& surface, std::span<const Spot> points, double width, Colour colour);

/// A polygon without inward corners, its points clockwise as seen.
void fillConvex(Surface& surface, std::span<const Spot> points, Colour colour);

/// Whole pixels.
void fillRect(Surface& surface, const RECT& rect, Colour colour);

/// The border of `rect`, inside it, `width` pixels.
void frameRect(Surface& surface, const RECT& rect, int width, Colour colour);

} // namespace NRDM
