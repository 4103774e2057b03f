#pragma once

#include "easel/runtime/Drawer.h"
#include "easel/svg/Transform.h"

#include <optional>

namespace easel::script {

/// Symmetry axes as they can be seen: the solid lines that meet where the small ellipse is drawn,
/// and the first side of the active sector, told by the two triangles that point into it.
struct ShownAxes {
    int count = 0;
    svg::Point origin; ///< Pixels of the view.
    /// Of the first axis, degrees counter-clockwise as seen; nothing while its triangle is not
    /// drawn.
    std::optional<double> angleDegrees;
};

/// Nothing when no axes are drawn, or their origin cannot be told.
[[nodiscard]] std::optional<ShownAxes> shownAxes(const DisplayList& list);

/// Does the line between the points, drawn on for ever, pass `point`? Up to what rounding its ends
/// to pixels can move it there.
[[nodiscard]] bool passesThrough(const DrawCommand& line, svg::Point point);

} // namespace easel::script
