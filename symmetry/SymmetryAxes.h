#pragma once

#include "symmetry/geometry/PageAxes.h"

#include <cstdint>

namespace facetta {

/// N mirror axes as they are shown to the user and stored on a layer: a plain value, copied freely.
/// Its origin is in HARD (canvas) coordinates; whatever compares axes with art takes the
/// `PageAxes` that `pageAxes` makes of them.
struct SymmetryAxes {
    double originX = 0.0;       ///< document points
    double originY = 0.0;       ///< document points, y downwards
    double angle = 0.0;         ///< direction of the first axis, radians counter-clockwise
    std::int32_t axisCount = 0; ///< N, 1 to 72; 0 means no axes
    bool provisional = false;   ///< shown for editing, not attached to anything yet
    bool onLayer = false;       ///< belongs to the current top-level layer
    bool autoMirror = false;    ///< the layer's art is kept mirrored automatically

    /// Of the whole record. Whether two of them stand for the same lines is asked of `PageAxes`.
    bool operator==(const SymmetryAxes&) const = default;
};

[[nodiscard]] constexpr Point hardOriginOf(const SymmetryAxes& axes) {
    return {axes.originX, axes.originY};
}

} // namespace facetta
