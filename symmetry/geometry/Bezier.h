#pragma once

/// Cubic Bézier curves and where they meet a straight line.

#include "symmetry/geometry/Geometry.h"

#include <array>
#include <span>

namespace facetta {

/// The curve from `p0` to `p3` with the control points `p1` and `p2`.
struct Cubic {
    Point p0;
    Point p1;
    Point p2;
    Point p3;
};

/// The point of `curve` at parameter `t`, in 0 to 1; exactly `p0` at 0.
[[nodiscard]] Point evaluate(const Cubic& curve, double t);

struct SplitCubic {
    Cubic before;
    Cubic after;
};

/// The two parts of `curve` before and after `t`. They share the point at `t` bit for bit.
[[nodiscard]] SplitCubic split(const Cubic& curve, double t);

/// The part of `curve` from `from` to `to`, with 0 <= from <= to <= 1. A bound of exactly 0 or 1
/// keeps that end of the curve bit for bit.
[[nodiscard]] Cubic between(const Cubic& curve, double from, double to);

/// The same curve run backwards.
[[nodiscard]] constexpr Cubic reversed(const Cubic& curve) {
    return {curve.p3, curve.p2, curve.p1, curve.p0};
}

/// A cubic function on 0 to 1 by its four Bernstein coefficients, such as the signed distance of a
/// curve from a line at its four control points.
using BernsteinCubic = std::array<double, 4>;

[[nodiscard]] double evaluate(const BernsteinCubic& function, double t);

/// Up to three parameters in rising order.
struct Roots {
    std::array<double, 3> values{};
    int count = 0;

    [[nodiscard]] std::span<const double> all() const {
        return {values.data(), static_cast<std::size_t>(count)};
    }
};

/// The parameters strictly between 0 and 1 at which `function` changes sign, in rising order.
/// A zero at either end and a touch without a change of sign are not reported; a triple zero is
/// one. The function that is zero everywhere has none.
[[nodiscard]] Roots signChanges(const BernsteinCubic& function);

} // namespace facetta
