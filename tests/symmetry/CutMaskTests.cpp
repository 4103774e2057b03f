#include "symmetry/geometry/CutMask.h"

#include "tests/symmetry/PathText.h"
#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>

using namespace facetta;
using facetta::tests::Random;
using facetta::tests::shapeOf;
using facetta::tests::textOf;

namespace {

std::vector<SectorMask> cut(const PageAxes& axes, std::span<const PathShape> members,
                            FillRule rule = FillRule::NonZero) {
    CutScratch scratch;
    return cutMask(MirrorFrame{axes, 0.0}, members, rule, scratch);
}

std::string outcomeOf(const std::vector<SectorMask>& parts) {
    std::string text;
    for (const SectorMask& part : parts) {
        text += (text.empty() ? "" : "; ") + std::to_string(part.sector) + ":";
        for (const PathShape& member : part.members)
            text += " " + textOf(member);
    }
    return text;
}

bool isCalm(const PageAxes& axes, const SectorMask& part, FillRule rule) {
    const std::vector<SectorMask> again = cut(axes, part.members, rule);
    return again.size() == 1 && std::ranges::equal(again.front().members, part.members,
                                                   [](const auto& one, const auto& other) {
                                                       return sameShape(one, other);
                                                   });
}

} // namespace

TEST_CASE("a mask ends at the axes that bound the sector in which it was drawn") {
    struct Row {
        std::string what;
        int axisCount; // the first axis is the x axis
        std::vector<std::string> members;
        std::string expected;
        FillRule rule = FillRule::NonZero;
    };
    const Row rows[] = {
        {"inside: as it is", 2, {"M 10 10 L 40 10 L 40 40 Z"}, "0: M 10 10 L 40 10 L 40 40 Z"},
        {"one axis", 1, {"M 0 50 L 0 -50 L 60 -50 L 60 50 Z"}, "0: M 60 0 L 60 50 L 0 50 L 0 0 Z"},
        {"drawn below it: it stays there",
         1,
         {"M 0 -50 L 0 50 L 60 50 L 60 -50 Z"},
         "1: M 60 0 L 60 -50 L 0 -50 L 0 0 Z"},
        {"a curve is cut where it crosses",
         1,
         {"M 50 40 L -50 40 C -50 -40 50 -40 50 40 Z"},
         "0: M 38.49 0 C 45.53 9.76 50 23.09 50 40 L -50 40 C -50 23.09 -45.53 9.76 -38.49 0 Z"},
        {"across both axes and the origin: round it",
         2,
         {"M 50 50 L -50 50 L -50 -50 L 50 -50 Z"},
         "0: M 50 0 L 50 50 L 0 50 L 0 0 Z"},
        {"a ring around the origin: outline and hole meet there",
         2,
         {"M 50 50 L -50 50 L -50 -50 L 50 -50 Z", "M 20 20 L 20 -20 L -20 -20 L -20 20 Z"},
         "0: M 50 0 L 50 50 L 0 50 L 0 0 Z M 0 20 L 20 20 L 20 0 L 0 0 Z"},
        {"across both axes, apart from the origin",
         2,
         {"M 60 20 L 60 -20 L 80 -20 L 80 60 L -20 60 L -20 40 L 60 40 Z"},
         "0: M 0 40 L 60 40 L 60 20 L 60 0 L 80 0 L 80 60 L 0 60 Z"},
        {"two prongs stay one path",
         1,
         {"M 0 50 L 0 -50 L 20 -50 L 20 20 L 40 20 L 40 -50 L 60 -50 L 60 50 Z"},
         "0: M 60 0 L 60 50 L 0 50 L 0 0 L 20 0 L 20 20 L 40 20 L 40 0 Z"},
        {"a run along the axis stays",
         1,
         {"M 0 0 L 50 0 L 50 50 L 0 50 Z"},
         "0: M 0 0 L 50 0 L 50 50 L 0 50 Z"},
        {"an open one is closed as it is filled",
         1,
         {"M 0 50 L 0 -50 L 60 -50 L 60 50"},
         "0: M 60 0 L 60 50 L 0 50 L 0 0 Z"},
        {"and stays open where nothing is cut",
         1,
         {"M 0 50 L 60 60 L 0 90"},
         "0: M 0 50 L 60 60 L 0 90"},
        {"holes are cut alike, those beyond the axis go",
         1,
         {"M 0 50 L 0 -50 L 90 -50 L 90 50 Z", "M 10 20 L 40 20 L 40 -20 L 10 -20 Z",
          "M 50 -10 L 80 -10 L 80 -20 L 50 -20 Z"},
         "0: M 90 0 L 90 50 L 0 50 L 0 0 Z M 10 0 L 10 20 L 40 20 L 40 0 Z"},
        {"islands in other sectors are parts of their own",
         1,
         {"M 0 20 L 50 20 L 50 60 Z", "M 10 -30 L 20 -40 L 30 10 Z", "M 60 20 L 90 20 L 90 60 Z"},
         "0: M 0 20 L 50 20 L 50 60 Z M 60 20 L 90 20 L 90 60 Z; "
         "1: M 25 0 L 10 -30 L 20 -40 L 28 0 Z"},
        {"a line shows nothing: as it is", 1, {"M 0 0 L 100 0"}, "0: M 0 0 L 100 0"},
        {"so does a point", 1, {"M 10 10"}, ""},
        {"a dot across the axis is too small to be cut",
         1,
         {"M 10 0.1 L 10.1 -0.1 L 9.9 -0.1 Z"},
         "0: M 10 0.1 L 10.1 -0.1 L 9.9 -0.1 Z"},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        std::vector<PathShape> members;
        for (const std::string& member : row.members)
            members.push_back(shapeOf(member));
        const PageAxes axes{.axisCount = row.axisCount};
        const std::vector<SectorMask> parts = cut(axes, members, row.rule);
        CHECK(outcomeOf(parts) == row.expected);
        for (const SectorMask& part : parts)
            CHECK(isCalm(axes, part, row.rule));
    }
}

TEST_CASE("a cut mask shows what it showed in its sector, nothing beyond, and cut again it stays") {
    constexpr int kMasks = 3000;
    constexpr int kTippedScales = 1; // see the same law of paths
    Random random;
    int changed = 0;
    int inside = 0;
    for (int i = 0; i < kMasks; ++i) {
        CAPTURE(i);
        const PageAxes axes = random.axes();
        const double size = random.size();
        PathShape mask = random.path(axes, /*closed*/ true, size);
        const std::vector<SectorMask> parts = cut(axes, std::span(&mask, 1));
        REQUIRE(parts.size() == 1);
        changed += isCalm(axes, parts.front(), FillRule::NonZero) ? 0 : 1;

        for (PathSegment& segment : mask.segments) // of straight lines the turns are exact
            segment.in = segment.out = segment.anchor;
        const SectorMask part = cut(axes, std::span(&mask, 1)).front();
        for (int k = 0; k < 8; ++k) {
            const Point point = random.point(axes.origin, size);
            const bool here = sectorIndexOf(axes, point) == part.sector;
            const auto nearTo = [&](const PathShape& path) {
                for (std::size_t c = 0; c < curveCount(path); ++c) {
                    const Cubic line = curveAt(path, c);
                    if (distance(point, nearestPoint({line.p0, line.p3}, point)) < 0.02)
                        return true;
                }
                return false;
            };
            if (nearTo(mask) || nearTo(part.members.front())) continue;
            const int turns = windingNumber(part.members.front(), point);
            REQUIRE(turns == (here ? windingNumber(mask, point) : 0));
            inside += turns != 0 ? 1 : 0;
        }
    }
    CHECK(changed <= kTippedScales);
    CHECK(inside > 200);
}
