#pragma once

/// Random axes and paths for the laws of the mirror geometry.

#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"
#include "tests/Seed.h"

#include <cmath>
#include <cstddef>
#include <random>

namespace facetta::tests {

/// Axis counts at and beside the limits, with prime, odd and even ones between.
constexpr int kAxisCounts[] = {1, 2, 3, 5, 6, 7, 12, 36, 71, 72};

class Random {
public:
    [[nodiscard]] double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine_);
    }
    [[nodiscard]] int integer(int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(engine_);
    }
    [[nodiscard]] bool coin() { return integer(0, 1) == 1; }

    /// A storable point within `reach` of `centre` in both coordinates.
    [[nodiscard]] Point point(Point centre, double reach) {
        return rounded({centre.x + real(-reach, reach), centre.y + real(-reach, reach)});
    }

    /// Axes with a storable origin within 2,000 points.
    [[nodiscard]] PageAxes axes() {
        return {.origin = point({}, 2000.0),
                .angle = normaliseAngle(real(-7.0, 14.0)),
                .axisCount = kAxisCounts[integer(0, std::size(kAxisCounts) - 1)]};
    }

    /// A path of 2 to 12 anchors around a place near the origin, straight or curved.
    [[nodiscard]] PathShape path(const PageAxes& axes, bool closed, double size) {
        const bool curved = integer(0, 3) > 0;
        const Point centre = point(axes.origin, size / 2.0);
        PathShape shape{{}, closed};
        const int anchors = integer(closed && !curved ? 3 : 2, 12);
        for (int i = 0; i < anchors; ++i) {
            const Point anchor = point(centre, size);
            shape.segments.push_back({anchor, curved ? point(anchor, size / 2.0) : anchor,
                                      curved ? point(anchor, size / 2.0) : anchor, curved, 0});
        }
        return shape;
    }

    /// Between 10 and 1,000 points, small sizes as often as large ones.
    [[nodiscard]] double size() { return std::pow(10.0, real(1.0, 3.0)); }

private:
    std::mt19937_64 engine_{seed()};
};

} // namespace facetta::tests
