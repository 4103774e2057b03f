#include "tool/drawing/Mask.h"

#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace facetta;
using facetta::tests::Random;

namespace {

/// By the number of edges to the right of the point.
bool isInside(std::span<const Point> corners, Point point) {
    bool inside = false;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
        const Point a = corners[i];
        const Point b = corners[j];
        if ((a.y > point.y) == (b.y > point.y)) continue;
        if (point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

int timesCovered(const Mask& mask, Point point) {
    int times = 0;
    for (const MaskPolygon& polygon : mask.all())
        times += isInside(polygon.corners(), point) ? 1 : 0;
    return times;
}

/// The axes turned over, so that the rule of the sectors, which is written for y up, applies.
int sectorOf(const PixelAxes& axes, Point pixels) {
    const PageAxes upright{.origin = {axes.origin.x, -axes.origin.y},
                           .angle = axes.angle,
                           .axisCount = axes.axisCount};
    return sectorIndexOf(upright, {pixels.x, -pixels.y});
}

/// Pixels between `point` and the nearer of the two bounds of the active sector.
double distanceToBounds(const PixelAxes& axes, Point point) {
    double least = std::numeric_limits<double>::infinity();
    for (const double angle : {axes.angle, axes.angle + axes.sectorAngle})
        least = std::min(least, std::abs(cross(pixelDirection(angle), point - axes.origin)));
    return least;
}

PixelAxes axesAt(Point origin, double angle, int count) {
    return {.origin = origin,
            .angle = angle,
            .sectorAngle = kPi / count,
            .axisCount = count,
            .reach = 1e7};
}

/// Every place of the area is covered once outside the active sector, and not at all inside it.
void checkBySamples(const PixelAxes& axes, const PixelRect& area, Random& random) {
    constexpr int kSamples = 200;
    constexpr double kRounding = 1e-6; // pixels
    const Mask mask = maskOf(axes, area);
    CAPTURE(axes.origin.x);
    CAPTURE(axes.origin.y);
    CAPTURE(axes.angle);
    CAPTURE(axes.axisCount);
    for (int i = 0; i < kSamples; ++i) {
        const Point point{random.real(area.left, area.right), random.real(area.top, area.bottom)};
        if (distanceToBounds(axes, point) < kRounding) continue;
        CAPTURE(point.x);
        CAPTURE(point.y);
        REQUIRE(timesCovered(mask, point) == (sectorOf(axes, point) == 0 ? 0 : 1));
    }
    for (const MaskPolygon& polygon : mask.all())
        for (const Point corner : polygon.corners())
            REQUIRE(contains(grown(area, kRounding), corner));
}

} // namespace

TEST_CASE("the mask covers the area but for the active sector, for every rectangle and angle") {
    struct Row {
        const char* where;
        double spread; // of the origin, in pixels around the middle of the area
    };
    const Row rows[] = {{"origin in the view", 400}, {"or near it", 1500}, {"or far away", 100000}};
    Random random;
    for (const auto& row : rows) {
        INFO(row.where);
        for (int i = 0; i < 1500; ++i) {
            const PixelRect area{random.real(-50, 0), random.real(-50, 0), random.real(10, 1500),
                                 random.real(10, 900)};
            const Point origin{random.real(-row.spread, row.spread),
                               random.real(-row.spread, row.spread)};
            const int count = i % 3 == 0 ? 1 : static_cast<int>(random.real(1, 73));
            checkBySamples(axesAt(origin, random.real(0, kTwoPi), count), area, random);
        }
    }
}

TEST_CASE("the mask is right where the sector meets edges and corners of the area exactly") {
    const PixelRect area{0, 0, 800, 600};
    const Point origins[] = {{400, 300}, {0, 0},    {800, 600}, {0, 300},   {400, 0},
                             {400, 600}, {-100, 0}, {800, -50}, {900, 700}, {-200, 300}};
    Random random;
    for (const Point origin : origins)
        for (const int count : {1, 2, 4, 8})
            for (int eighth = 0; eighth < 16; ++eighth)
                checkBySamples(axesAt(origin, eighth * kPi / 8, count), area, random);
}
