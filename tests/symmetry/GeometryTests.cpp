#include "symmetry/geometry/Geometry.h"
#include "symmetry/geometry/PathShape.h"

#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

using namespace facetta;
using facetta::tests::Random;

TEST_CASE("an angle is brought into one turn, however far out it is") {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Row {
        std::string what;
        double angle;
        double expected;
    };
    const Row rows[] = {
        {"in range", 1.25, 1.25},
        {"zero", 0.0, 0.0},
        {"a whole turn", kTwoPi, 0.0},
        {"a quarter turn back", -kPi / 2.0, 1.5 * kPi},
        {"a little more than a turn", 7.0, 7.0 - kTwoPi},
        {"so little below zero that a turn more is a whole turn", -1e-17, 0.0},
        {"far out", 1e300, normaliseAngle(std::remainder(1e300, kTwoPi))},
        {"not a number", std::numeric_limits<double>::quiet_NaN(), 0.0},
        {"infinite", -kInfinity, 0.0},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        CHECK(normaliseAngle(row.angle) == doctest::Approx(row.expected).epsilon(1e-15));
        CHECK(normaliseAngle(row.angle) >= 0.0);
        CHECK(normaliseAngle(row.angle) < kTwoPi);
    }
}

TEST_CASE("a positive rotation is clockwise and none at all changes no bit") {
    CHECK(distance(rotateAbout({1.0, 0.0}, {}, kPi / 2.0), {0.0, -1.0}) < 1e-15);
    CHECK(rotateAbout({0.1, 0.7}, {1e9, 0.3}, 0.0) == Point{0.1, 0.7});
    CHECK(rotationAbout({5.0, 7.0}, 0.0) == Matrix{});
}

TEST_CASE("rotations and reflections keep lengths, come home, and agree with their matrices") {
    Random random;
    for (int i = 0; i < 20000; ++i) {
        const Point centre = random.point({}, 2000.0);
        const Point p = random.point({}, 2000.0);
        const double angle = random.real(-7.0, 7.0);
        CAPTURE(i);
        const Point turned = rotateAbout(p, centre, angle);
        const Point mirrored = reflectAcross(p, centre, angle);
        REQUIRE(std::abs(distance(turned, centre) - distance(p, centre)) < 1e-9);
        REQUIRE(distance(rotateAbout(turned, centre, -angle), p) < 1e-9);
        REQUIRE(distance(reflectAcross(mirrored, centre, angle), p) < 1e-9);
        REQUIRE(distance(apply(rotationAbout(centre, angle), p), turned) < 1e-9);
        REQUIRE(distance(apply(reflectionAcross(centre, angle), p), mirrored) < 1e-9);
        // The line itself stays, and what is left of it goes to its right.
        const Vector along = direction(angle);
        REQUIRE(std::abs(cross(along, p - centre) + cross(along, mirrored - centre)) < 1e-9);
        REQUIRE(std::abs(dot(along, p - mirrored)) < 1e-9);
    }
}

TEST_CASE("maps are composed in the order in which they are named") {
    const Matrix turn = rotationAbout({}, kPi / 2.0);
    const Matrix shift{.tx = 10.0};
    CHECK(distance(apply(compose(turn, shift), Point{1.0, 0.0}), {10.0, -1.0}) < 1e-15);
    CHECK(distance(apply(compose(shift, turn), Point{1.0, 0.0}), {0.0, -11.0}) < 1e-14);
    CHECK(mirrors(reflectionAcross({3.0, 4.0}, 1.0)));
    CHECK_FALSE(mirrors(turn));
}

TEST_CASE("the nearest point of a ray is its start for whatever lies behind it") {
    const Vector towards = direction(kPi / 4.0);
    CHECK(distance(projectOntoRay({2.0, 0.0}, {}, towards), {1.0, 1.0}) < 1e-15);
    CHECK(projectOntoRay({-2.0, 1.0}, {}, towards) == Point{});
    CHECK(nearestPoint({{1.0, 1.0}, {1.0, 1.0}}, {5.0, 5.0}) == Point{1.0, 1.0});
    CHECK(nearestPoint({{}, {10.0, 0.0}}, {12.0, 5.0}) == Point{10.0, 0.0});
}

TEST_CASE("what is too large for the host becomes its largest number") {
    CHECK(narrow(1e300) == std::numeric_limits<float>::max());
    CHECK(narrow(-1e300) == -std::numeric_limits<float>::max());
    CHECK(narrow(0.1) == 0.1F);
}

TEST_CASE("a segment's image is that of its points, rounded, to the bit") {
    Random random;
    const auto checkImage = [](const Matrix& map, Point anchor, Point in, Point out) {
        const PathSegment image = transformed({anchor, in, out, true, selection::kIn}, map);
        for (const auto& [made, from] :
             {std::pair{image.anchor, anchor}, {image.in, in}, {image.out, out}}) {
            const Point expected = rounded(apply(map, from));
            CHECK(std::memcmp(&made, &expected, sizeof expected) == 0);
        }
        CHECK(image.corner);
        CHECK(image.selection == selection::kIn);
    };
    for (int i = 0; i < 3'000; ++i)
        checkImage(reflectionAcross(random.point({}, 2000.0), random.real(0.0, kTwoPi)),
                   random.point({}, 1e4), random.point({}, i % 2 == 0 ? 1.0 : 3e38),
                   random.point({}, 1e-30));
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const Matrix larger{10.0, 0.0, 0.0, 10.0, 0.0, 0.0};
    checkImage(larger, {1e300, -1e38}, {1e38, 1.0}, {-1e38, 2.0});
    checkImage(larger, {-0.0, 0.0}, {1e-300, -1e-300}, {3.4e37, 0.1});
    CHECK(std::isnan(transformed({{kNone, 0.0}, {}, {}}, larger).anchor.x));
}
