#pragma once

/// Where the 64-bit geometry meets the host's 32-bit coordinates.
///
/// The record of the axes keeps its origin in HARD (canvas) coordinates, y downwards; cursor and
/// art are SOFT (page), y upwards. An origin is softened before it is compared with art.

#include "host/Types.h"
#include "symmetry/SymmetryAxes.h"
#include "symmetry/geometry/Geometry.h"
#include "symmetry/geometry/PageAxes.h"

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

/// `axes` as geometry is built from them: the origin brought onto the canvas and into page
/// coordinates, the angle into its range. Throws `ai::Error`.
[[nodiscard]] PageAxes pageAxes(const SymmetryAxes& axes);

} // namespace facetta
