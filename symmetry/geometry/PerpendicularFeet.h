#pragma once

/// Where a cubic Bézier curve is perpendicular to the line from a point.

#include "symmetry/geometry/Bezier.h"

namespace facetta {

/// Up to five parameters in rising order.
struct Feet {
    std::array<double, 5> values{};
    int count = 0;

    [[nodiscard]] std::span<const double> all() const {
        return {values.data(), static_cast<std::size_t>(count)};
    }
};

/// The parameters in 0 to 1, both included, of the feet of the perpendiculars from `point` onto
/// `curve`: the zeros of (B(t) - point) . B'(t), and so every place where the distance from `point`
/// is stationary. Among them are a place where the curve passes through `point` and the tip of a
/// cusp.
///
/// An end whose handle lies on it counts by the direction in which the curve leaves it, not by its
/// derivative, which is zero there: the corners of a polygon are no feet of their own. A curve that
/// is a single point has none.
///
/// Zeros closer together than 1e-7 count as one. A simple zero is exact to rounding.
[[nodiscard]] Feet perpendicularFeet(const Cubic& curve, Point point);

} // namespace facetta
