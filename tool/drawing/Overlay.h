#pragma once

/// The axes over the document.

#include "tool/ToolSession.h"
#include "tool/drawing/Surface.h"

#include <array>

namespace facetta {

/// Axes that a layer carries are shown while the layer is visible, whatever tool is in hand;
/// others while they are pending, or follow the cursor of the tool. Throws `ai::Error`.
[[nodiscard]] bool axesAreShown(const ToolSession& session);

/// Are the axes shown being made or edited, rather than attached to a layer or following a cursor
/// that has not been pressed?
[[nodiscard]] bool axesArePending(const ToolState& state);

/// Is the mask over the inactive sectors to be drawn with the axes, which are shown? Pending axes
/// always have one; for those of a layer the user chooses.
[[nodiscard]] bool maskIsShown(const ToolSession& session);

/// The distance from the origin, in pixels, at which the markers of the active sector begin: with
/// many axes they move outwards, to stay apart.
[[nodiscard]] double markerDistance(int axisCount);

/// One marker: a triangle on the ray at `angle`, pointing into the sector that lies `side` (1
/// counter-clockwise, -1 clockwise) of it. In pixels.
[[nodiscard]] std::array<Point, 3> markerOn(const PixelAxes& axes, double angle, double side);

/// The bisector of the active sector, by which it is turned: seen while the cursor is over it.
enum class SectorHandle : bool { Hidden, Shown };

/// Both draw onto `surface` and throw `ai::Error`. `opacity` is a fraction; more than 1 counts
/// as 1.
void drawMask(const Surface& surface, const PixelAxes& axes, double opacity);
void drawAxes(const Surface& surface, const PixelAxes& axes, SectorHandle handle);

} // namespace facetta
