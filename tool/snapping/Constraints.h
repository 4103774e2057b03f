#pragma once

#include "symmetry/geometry/Geometry.h"

namespace facetta {

/// Where the Shift key holds a drag to: directions in steps of 45 degrees from the host's constrain
/// angle.
struct Constrained {
    double angle = 0.0; ///< radians, counter-clockwise
    Point target;       ///< the dragged point projected onto that direction
};

/// `target` held to the constrained direction from `base` that is nearest, exactly half-way the
/// next one counter-clockwise. `constrainDegrees` is the host's constrain angle.
[[nodiscard]] Constrained constrain(Point base, Point target, double constrainDegrees);

/// The direction from `base` to `target`, in [0, 2 pi).
[[nodiscard]] double directionTo(Point base, Point target);

} // namespace facetta
