#pragma once

#include "easel/document/Bezier.h"

#include <span>
#include <vector>

namespace easel {

/// Cubics that run through a stroke of points within `tolerance`, end to end and smooth where they
/// meet. Points that follow on themselves count once; fewer than two make no curve.
///
/// Least squares with chord lengths as parameters, bettered by Newton's method, and halved at the
/// worst point where that is not enough: P. J. Schneider, "An Algorithm for Automatically Fitting
/// Digitized Curves", Graphics Gems, 1990.
[[nodiscard]] std::vector<Curve> fitCurves(std::span<const CurvePoint> stroke, double tolerance);

} // namespace easel
