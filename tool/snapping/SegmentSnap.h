#pragma once

/// Art that attracts whatever is dragged onto it.

#include "symmetry/geometry/Geometry.h"

#include <optional>

namespace facetta {

/// The place on the path under `point` that the host takes it to hit; empty when no curve of a path
/// is hit. Selected art comes before other art. Page coordinates. Throws `ai::Error`.
[[nodiscard]] std::optional<Point> findPlaceOnPath(Point point);

} // namespace facetta
