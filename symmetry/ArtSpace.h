#pragma once

/// Where the 64-bit geometry meets the host's 32-bit coordinates.
///
/// The record of the axes keeps its origin in HARD (canvas) coordinates, y downwards; cursor and
/// art are SOFT (page), y upwards. An origin is softened before it is compared with art.

#include "host/Types.h"
#include "symmetry/geometry/Geometry.h"
#include "symmetry/geometry/SymmetryAxes.h"

namespace facetta {

/// Points. Width and height of the host's canvas, and so the largest hard coordinate on it.
constexpr double kCanvasSize = 16383.0;

[[nodiscard]] constexpr Point widen(AIRealPoint point) {
    return {static_cast<double>(point.h), static_cast<double>(point.v)};
}

/// The nearest point, matrix that the host can store.
[[nodiscard]] constexpr AIRealPoint narrow(Point point) {
    return {narrow(point.x), narrow(point.y)};
}
[[nodiscard]] AIRealMatrix narrow(const Matrix& matrix);

/// A canvas point in page coordinates, and back; rounded to 32-bit reals on the way. Throw
/// `ai::Error`, as without a document.
[[nodiscard]] Point soften(Point hard);
[[nodiscard]] Point harden(Point soft);

/// `point` moved onto the canvas: both coordinates in 0 to `kCanvasSize`, 0 for what is no number.
[[nodiscard]] Point clampToCanvas(Point hard);

/// `axes` with its origin, brought onto the canvas, in page coordinates: what geometry is built
/// from. Throws `ai::Error`.
[[nodiscard]] SymmetryAxes inArtSpace(const SymmetryAxes& axes);

} // namespace facetta
