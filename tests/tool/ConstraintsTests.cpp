#include "tool/snapping/Constraints.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace facetta;

namespace {

constexpr double kDegree = kPi / 180.0;

} // namespace

TEST_CASE("directions are held to steps of 45 degrees from the constrain angle, half-way up") {
    struct Row {
        double free;
        double constrainDegrees;
        double held;
    };
    const Row rows[] = {
        {0, 0, 0},     {22, 0, 0},   {23, 0, 45},   {359, 0, 360},  {338, 0, 360},
        {337, 0, 315}, {30, 30, 30}, {52, 30, 30},  {53, 30, 75},   {8, 30, 30},
        {7, 30, -15},  {10, -90, 0}, {80, 450, 90}, {200, 30, 210}, {170, 0, 180},
    };
    for (const auto& row : rows) {
        INFO(row.free, " with ", row.constrainDegrees);
        const Point base{100, 50};
        const Constrained result =
            constrain(base, base + 40.0 * direction(row.free * kDegree), row.constrainDegrees);
        CHECK(std::abs(std::remainder(result.angle - row.held * kDegree, kTwoPi)) < 1e-9);
    }
}

TEST_CASE("the constrained point is the projection: never farther from the base than the cursor") {
    const Point base{10, 20};
    for (int degrees = 0; degrees < 360; degrees += 7) {
        INFO(degrees);
        const Point target = base + 80.0 * direction(degrees * kDegree);
        const Constrained held = constrain(base, target, 12.0);
        const Vector along = direction(held.angle);
        CHECK(std::abs(cross(along, held.target - base)) < 1e-9); // on the direction
        CHECK(std::abs(dot(along, target - held.target)) < 1e-9); // the foot on it
        CHECK(dot(along, held.target - base) >= 80.0 * std::cos(kPi / 8) - 1e-9);
    }
}
