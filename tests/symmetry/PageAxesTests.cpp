#include "symmetry/geometry/PageAxes.h"

#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <set>
#include <string>

using namespace facetta;
using facetta::tests::kAxisCounts;
using facetta::tests::Random;

namespace {

/// Every image of `point`, the point itself first.
std::vector<Point> imagesOf(const PageAxes& axes, Point point) {
    std::vector<Point> images{point};
    for (const Matrix& map : imageTransforms(axes))
        images.push_back(apply(map, point));
    return images;
}

/// How far a point is from the nearest axis, by the distance from every one of them.
double distanceFromAxes(const PageAxes& axes, Point point) {
    double nearest = 1e300;
    for (int k = 0; k < axes.axisCount; ++k)
        nearest =
            std::min(nearest, std::abs(cross(direction(rayAngle(axes, k)), point - axes.origin)));
    return nearest;
}

} // namespace

TEST_CASE("rays are numbered clockwise from the first axis") {
    const PageAxes axes{.origin = {3.0, 4.0}, .angle = 0.5, .axisCount = 3};
    CHECK(rayAngle(axes, 0) == 0.5);
    CHECK(rayAngle(axes, 1) == doctest::Approx(0.5 - kPi / 3.0 + kTwoPi));
    CHECK(rayAngle(axes, 5) == doctest::Approx(0.5 + kPi / 3.0));
    const LineSegment ray = raySegment(axes, 0);
    CHECK(ray.start == Point{3.0, 4.0});
    CHECK(distance(ray.end, Point{3.0, 4.0} + 16000.0 * direction(0.5)) < 1e-9);
}

TEST_CASE("sectors are numbered counter-clockwise from the first axis") {
    struct Row {
        std::string where;
        int axisCount;
        double angle;
        Point point;
        int sector;
    };
    const Row rows[] = {
        {"on the first axis", 3, 0.0, {1, 0}, 0},
        {"just above it", 3, 0.0, {1, 1e-15}, 0},
        {"just clockwise of it: the quotient rounds up to 6", 3, 0.0, {1, -1e-15}, 5},
        {"in the next one counter-clockwise", 3, 0.0, {0, 1}, 1},
        {"opposite", 3, 0.0, {-1, -0.1}, 3},
        {"N = 1, above the only axis", 1, 0.0, {0, 1}, 0},
        {"N = 1, below it", 1, 0.0, {0, -1}, 1},
        {"N = 72, last", 72, 0.0, {1, -0.01}, 143},
        {"an angle below zero", 2, -kPi / 2.0, {1, -1}, 0},
        {"an angle above a turn", 2, 7.0, {std::cos(7.1), std::sin(7.1)}, 0},
        {"the origin, with direction 0 in sector 0", 3, -0.1, {0, 0}, 0},
        {"the origin, with direction 0 in the last sector", 3, 0.1, {0, 0}, 5},
    };
    for (const auto& row : rows) {
        INFO(row.where);
        CHECK(sectorIndexOf({.angle = row.angle, .axisCount = row.axisCount}, row.point) ==
              row.sector);
    }
}

TEST_CASE("sector s lies between rays 2N - s and 2N - s - 1") {
    for (const int axisCount : kAxisCounts) {
        const PageAxes axes{.angle = 1.0, .axisCount = axisCount};
        for (int s = 0; s < sectorCount(axes); ++s) {
            CAPTURE(axisCount);
            CAPTURE(s);
            const double clockwiseEdge =
                rayAngle(axes, (sectorCount(axes) - s) % sectorCount(axes));
            const Point inside = Point{} + direction(clockwiseEdge + sectorAngle(axes) * 0.001);
            const Point alsoInside = Point{} + direction(rayAngle(axes, sectorCount(axes) - s - 1) -
                                                         sectorAngle(axes) * 0.001);
            REQUIRE(sectorIndexOf(axes, inside) == s);
            REQUIRE(sectorIndexOf(axes, alsoInside) == s);
        }
    }
}

TEST_CASE("folding lands in sector 0, folds once, and agrees with its matrix") {
    Random random;
    for (int i = 0; i < 20000; ++i) {
        const PageAxes axes = random.axes();
        const Point p = random.point(axes.origin, 1000.0);
        CAPTURE(i);
        if (distanceFromAxes(axes, p) < 1e-6)
            continue; // the sector of a point on an axis is a matter of rounding
        const Point folded = foldIntoSector0(axes, p);
        REQUIRE(sectorIndexOf(axes, folded) == 0);
        REQUIRE(foldIntoSector0(axes, folded) == folded);
        const Matrix fold = foldMatrix(axes, sectorIndexOf(axes, p));
        REQUIRE(distance(apply(fold, p), folded) < 1e-9);
        REQUIRE(mirrors(fold) == (sectorIndexOf(axes, p) % 2 == 1));
    }
}

TEST_CASE("the 2N images of a point lie in 2N sectors and fold to one point") {
    Random random;
    for (int i = 0; i < 2000; ++i) {
        const PageAxes axes = random.axes();
        const Point p = random.point(axes.origin, 1000.0);
        if (distanceFromAxes(axes, p) < 1e-6) continue;
        CAPTURE(i);
        const Point folded = foldIntoSector0(axes, p);
        std::set<int> sectors;
        for (const Point image : imagesOf(axes, p)) {
            sectors.insert(sectorIndexOf(axes, image));
            REQUIRE(distance(foldIntoSector0(axes, image), folded) < 1e-9);
        }
        REQUIRE(static_cast<int>(sectors.size()) == sectorCount(axes));
    }
}

TEST_CASE("art in sector 0 fills the last sector by reflection and the others by rotation") {
    const PageAxes axes{.angle = 0.3, .axisCount = 3};
    const std::vector<Point> images = imagesOf(axes, Point{} + direction(0.4));
    const int sectors[] = {0, 5, 4, 3, 2, 1};
    for (std::size_t i = 0; i < images.size(); ++i)
        CHECK(sectorIndexOf(axes, images[i]) == sectors[i]);
    CHECK(imageTransforms({.axisCount = 1}).size() == 1);
    CHECK(imageTransforms({.axisCount = 1}, Images::Rotations).empty());
    CHECK(imageTransforms(axes, Images::Rotations).size() == 2);
    CHECK(imageTransforms(axes, Images::None).empty());
}
