#pragma once

/// Art that attracts a dragged axis: where a path is perpendicular to it.

#include "symmetry/geometry/Geometry.h"

#include <cstddef>
#include <optional>

namespace facetta {

struct PerpendicularSnap {
    std::optional<Point> point; ///< empty: nothing attracts
    std::size_t examined = 0;   ///< curves near enough to have their feet computed
};

/// The place on a path that is nearest to `cursor`, less than `reach` away from it, of all where
/// the path is perpendicular to the line from `origin`. Paths of the current document count that
/// are neither locked nor hidden nor inside anything that is. Points in page coordinates. Throws
/// `ai::Error`.
[[nodiscard]] PerpendicularSnap findPerpendicular(Point origin, Point cursor, double reach);

} // namespace facetta
