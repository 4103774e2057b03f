#pragma once

#include "symmetry/geometry/Bezier.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace facetta::tests {

/// (B(t) - point) . B'(t), written out by de Casteljau's scheme in more digits than the code has.
class FootEquation {
public:
    using Real = long double;

    FootEquation(const Cubic& curve, Point point) {
        const Point controls[] = {curve.p0, curve.p1, curve.p2, curve.p3};
        for (std::size_t i = 0; i < 4; ++i) {
            x_[i] = Real{controls[i].x} - Real{point.x};
            y_[i] = Real{controls[i].y} - Real{point.y};
            size_ = std::max({size_, std::abs(x_[i]), std::abs(y_[i])});
        }
    }

    [[nodiscard]] Real operator()(Real t) const {
        const auto [x, dx] = placeAndSpeed(x_, t);
        const auto [y, dy] = placeAndSpeed(y_, t);
        return x * dx + y * dy;
    }
    [[nodiscard]] Real slope(Real t) const {
        constexpr Real kStep = 1e-6L;
        return ((*this)(t + kStep) - (*this)(t - kStep)) / (2.0L * kStep);
    }
    /// What rounding to 64 bits may add to its values.
    [[nodiscard]] Real noise() const {
        return 64.0L * std::numeric_limits<double>::epsilon() * size_ * size_;
    }
    /// The zero between two places with values of opposite sign.
    [[nodiscard]] Real zeroBetween(Real low, Real high) const {
        const bool rising = (*this)(low) < 0.0L;
        for (int i = 0; i < 80; ++i) {
            const Real middle = 0.5L * (low + high);
            (((*this)(middle) < 0.0L) == rising ? low : high) = middle;
        }
        return low;
    }

private:
    struct PlaceAndSpeed {
        Real place;
        Real speed;
    };
    static PlaceAndSpeed placeAndSpeed(const Real (&c)[4], Real t) {
        const auto mix = [t](Real a, Real b) { return a + t * (b - a); };
        const Real before = mix(mix(c[0], c[1]), mix(c[1], c[2]));
        const Real after = mix(mix(c[1], c[2]), mix(c[2], c[3]));
        return {mix(before, after), 3.0L * (after - before)};
    }

    Real x_[4]{};
    Real y_[4]{};
    Real size_ = 0.0L;
};

} // namespace facetta::tests
