#include "symmetry/geometry/RemovePoints.h"

#include "symmetry/geometry/MirrorPath.h"
#include "symmetry/geometry/Tolerances.h"
#include "tests/symmetry/PathText.h"
#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>

using namespace facetta;
using facetta::tests::Random;
using facetta::tests::shapeOf;
using facetta::tests::textOf;

TEST_CASE("an anchor on an axis goes when the curve is the same without it") {
    struct Row {
        std::string what;
        std::string path;
        std::string expected;
    };
    const Row rows[] = {
        {"a straight run", "M 30 -50 L 30 0 L 30 50", "M 30 -50 L 30 50"},
        {"a bend", "M 20 -50 L 30 0 L 20 50", "M 20 -50 L 30 0 L 20 50"},
        {"a line that turns back", "M 30 -50 L 30 0 L 30 -20", "M 30 -50 L 30 0 L 30 -20"},
        {"a straight run off the axes", "M 30 -50 L 30 5 L 30 50", "M 30 -50 L 30 5 L 30 50"},
        {"several in a row", "M -40 0 L -10 0 L 10 0 L 20 0 L 40 0", "M -40 0 L 40 0"},
        {"on the other axis", "M -30 20 L 0 20 L 50 20", "M -30 20 L 50 20"},
        {"a smooth curve split at its middle", "M 0 -40 C 20 -40 30 -20 30 0 C 30 20 20 40 0 40",
         "M 0 -40 C 40 -40 40 40 0 40"},
        {"a smooth join of two curves that are not one",
         "M 5 -40 C 30 -40 30 -20 30 0 C 30 20 30 40 5 40",
         "M 5 -40 C 30 -40 30 -20 30 0 C 30 20 30 40 5 40"},
        {"a line that runs on as a curve", "M 30 -50 L 30 0 C 30 20 40 40 60 60",
         "M 30 -50 L 30 0 C 30 20 40 40 60 60"},
        {"the seam of a closed path", "M 30 0 L 30 30 L -30 30 L -30 -30 L 30 -30 Z",
         "M 30 30 L -30 30 L -30 -30 L 30 -30 Z"},
        {"the last anchor of a closed path", "M 30 30 L -30 30 L -30 -30 L 30 -30 L 30 0 Z",
         "M 30 30 L -30 30 L -30 -30 L 30 -30 Z"},
        {"two anchors stay", "M -30 0 L 30 0 Z", "M -30 0 L 30 0 Z"},
        {"a single anchor stays", "M 0 0", "M 0 0"},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        CHECK(textOf(removeRedundantAxisPoints(shapeOf(row.path), {.axisCount = 2})) ==
              row.expected);
    }
}

TEST_CASE("removing what a cut put in brings the curve back, wherever it was cut") {
    Random random;
    int removed = 0;
    for (int i = 0; i < 3000; ++i) {
        CAPTURE(i);
        const PageAxes axes = random.axes();
        const double size = random.size();
        const Point from = random.point(axes.origin, size);
        const Point to = random.point(axes.origin, size);
        const Point joint =
            rounded(projectOntoRay(lerp(from, to, 0.4), axes.origin, direction(rayAngle(axes, 0))));
        const Cubic whole{from, random.point(from, size), random.point(to, size), to};
        const double t = random.real(0.1, 0.9);
        const Vector shift = joint - evaluate(whole, t); // so that the cut falls on the axis
        const auto [head, tail] =
            split({whole.p0 + shift, whole.p1 + shift, whole.p2 + shift, whole.p3 + shift}, t);
        PathShape cut{{{rounded(head.p0), rounded(head.p0), rounded(head.p1)},
                       {joint, rounded(head.p2), rounded(tail.p1)},
                       {rounded(tail.p3), rounded(tail.p2), rounded(tail.p3)}}};
        const PathShape merged = removeRedundantAxisPoints(cut, axes);
        if (merged.segments.size() == 3)
            continue; // handles too short to tell where the curve was cut
        ++removed;
        for (const double part : {0.2, 0.5, 0.8}) {
            const Point before = evaluate(curveAt(cut, 0), part);
            REQUIRE(distance(evaluate(curveAt(merged, 0), part * t), before) <
                    2.0 * kRemovalDistance);
        }
    }
    CHECK(removed > 2700);
}

TEST_CASE("removing many anchors in a row moves the curve no farther than removing one") {
    const auto straightSteps = [](int count, auto placeOf) {
        PathShape path;
        for (int i = 0; i < count; ++i) {
            const Point anchor = rounded(placeOf(i));
            path.segments.push_back({anchor, anchor, anchor});
        }
        return path;
    };
    const struct {
        std::string what;
        int axisCount;
        PathShape path;
        std::size_t fewerThan;
    } rows[] = {
        {"along a slightly bent line near the x axis", 2,
         straightSteps(
             401,
             [](int i) {
                 return Point{i * 2.5, 0.004 * std::sin(i * 0.02) + (i % 2 == 0 ? 0.0005 : 0.0)};
             }),
         100},
        // One more of them could go if each were judged alone.
        {"round the origin, an anchor on each half-line", 72,
         straightSteps(144, [](int i) { return Point{} + 0.5 * direction(i * kPi / 72); }), 100},
    };
    for (const auto& [what, axisCount, path, fewerThan] : rows) {
        INFO(what);
        const PathShape thinned = removeRedundantAxisPoints(path, {.axisCount = axisCount});
        CHECK(thinned.segments.size() < fewerThan);
        for (const PathSegment& segment : path.segments) {
            double nearest = 1e300;
            for (std::size_t i = 0; i < curveCount(thinned); ++i)
                nearest = std::min(
                    nearest, distance(segment.anchor, nearestPoint({thinned.segments[i].anchor,
                                                                    thinned.segments[i + 1].anchor},
                                                                   segment.anchor)));
            REQUIRE(nearest <= kRemovalDistance);
        }
    }
}
