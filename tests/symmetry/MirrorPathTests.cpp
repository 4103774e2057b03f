#include "symmetry/geometry/MirrorPath.h"

#include "symmetry/geometry/Crossings.h"
#include "symmetry/geometry/Tolerances.h"
#include "tests/symmetry/PathText.h"
#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <ctime>
#include <string>

using namespace facetta;
using facetta::tests::Random;
using facetta::tests::shapeOf;
using facetta::tests::textOf;

namespace {

constexpr double kSnapDistance = 12.0;

std::string outcomeOf(const MirroredPath& result) {
    constexpr const char* kImages[] = {"all", "rotations", "none"};
    std::string text;
    for (const Contour& contour : result.contours)
        text += std::string(text.empty() ? "" : ", ") + kImages[static_cast<int>(contour.images)] +
                " " + textOf(contour.shape);
    return (result.compound ? "compound: " : "") + text;
}

std::vector<PathShape> shapesOf(const MirroredPath& result) {
    std::vector<PathShape> shapes;
    for (const Contour& contour : result.contours)
        shapes.push_back(contour.shape);
    return shapes;
}

/// All shapes of the whole rosette; images of reflections run backwards, as in one compound path.
std::vector<PathShape> rosetteOf(const PageAxes& axes, const MirroredPath& result) {
    std::vector<PathShape> shapes = shapesOf(result);
    for (const Contour& contour : result.contours)
        for (const Matrix& map : imageTransforms(axes, contour.images)) {
            PathShape image = contour.shape;
            for (PathSegment& segment : image.segments)
                segment = transformed(segment, map);
            if (mirrors(map)) reverseRun(image.segments);
            shapes.push_back(image);
        }
    return shapes;
}

/// The winding number of closed shapes around a point, and how near they come to it.
struct Winding {
    double turns = 0.0;
    double nearest = 1e300;
};

Winding windingAround(std::span<const PathShape> shapes, Point point) {
    constexpr int kSteps = 48;
    Winding winding;
    for (const PathShape& shape : shapes)
        for (std::size_t i = 0; i < curveCount(shape); ++i) {
            const Cubic curve = curveAt(shape, i);
            Point from = curve.p0;
            for (int step = 1; step <= kSteps; ++step) {
                const Point to = step == kSteps ? curve.p3 : evaluate(curve, 1.0 / kSteps * step);
                winding.turns +=
                    std::atan2(cross(from - point, to - point), dot(from - point, to - point)) /
                    kTwoPi;
                winding.nearest =
                    std::min(winding.nearest, distance(point, nearestPoint({from, to}, point)));
                from = to;
            }
        }
    return winding;
}

/// Mirrors across one set of axes.
class Mirror {
public:
    Mirror(const PageAxes& axes, double snapDistance) : frame_(axes, snapDistance) {}

    MirroredPath mirror(const PathShape& source) {
        return facetta::mirror(frame_, source, scratch_);
    }
    MirroredPath mirrorCompound(std::span<const PathShape> members,
                                FillRule rule = FillRule::NonZero) {
        return facetta::mirrorCompound(frame_, members, rule, scratch_);
    }

private:
    MirrorFrame frame_;
    MirrorScratch scratch_;
};

} // namespace

TEST_CASE("what becomes of a path") {
    struct Row {
        std::string what;
        int axisCount; // the first axis is the x axis
        std::string source;
        std::string expected;
    };
    const Row rows[] = {
        {"inside: copied", 1, "M 0 50 L 100 50", "all M 0 50 L 100 50"},
        {"a curve that meets no axis stays as it was drawn", 1, "M 0 50 C 10 90 60 90 100 50",
         "all M 0 50 C 10 90 60 90 100 50"},
        {"the free end of one that is joined loses its handles", 1, "M 0 50 C 10 90 60 90 100 5",
         "rotations M 0 50 C 0 50 60 85 100 0 C 60 -85 0 -50 0 -50"},
        {"so does that of one that is cut; the end that goes keeps them, and the cut its place", 1,
         "M 0 50 C 10 90 60 90 100 -50",
         "rotations M 0 50 C 0 50 43.94 79.29 81.69 0 C 43.94 -79.29 0 -50 0 -50"},
        {"one end near the axis: joined there", 1, "M 0 50 L 100 5",
         "rotations M 0 50 L 100 0 L 0 -50"},
        {"the free end comes first", 1, "M 100 5 L 0 50", "rotations M 0 50 L 100 0 L 0 -50"},
        {"an end a little beyond the axis", 1, "M 0 -3 L 50 60",
         "rotations M 50 60 L 0 0 L 50 -60"},
        {"both ends on one ray: closed", 1, "M 10 5 L 50 50 L 100 3",
         "rotations M 10 0 L 50 50 L 100 0 L 50 -50 Z"},
        {"N = 1 has two rays", 1, "M -100 5 L 0 50 L 100 3",
         "none M -100 0 L 0 50 L 100 0 L 0 -50 Z"},
        {"ends on both rays: all images are one", 2, "M 100 5 C 100 60 60 100 5 100",
         "none M 100 0 C 100 55 55 100 0 100 C -55 100 -100 55 -100 0 "
         "C -100 -55 -55 -100 0 -100 C 55 -100 100 -55 100 0 Z"},
        {"an end at the origin", 3, "M 0 0 L 100 50", "rotations M 100 50 L 0 0 L 100 -50"},
        {"the origin counts as the other end's ray", 2, "M 0 0 L 40 50 L 0 80",
         "rotations M 0 0 L 40 50 L 0 80 L -40 50 Z"},
        {"through the origin: the half inside is kept", 2, "M 50 50 L -50 -50",
         "rotations M 50 50 L 0 0 L 50 -50"},
        {"drawn in the last sector: folded into the first", 3, "M 100 -50 L 150 -20 L 100 -5",
         "rotations M 100 50 L 150 20 L 100 0 L 150 -20 L 100 -50"},
        {"cut in two, open: separate paths", 1, "M 0 50 L 0 -50 L 30 -50 L 30 50",
         "rotations M 0 50 L 0 0 L 0 -50, rotations M 30 50 L 30 0 L 30 -50"},
        {"cut in one, closed: begins where the source does", 1, "M 0 50 L 0 -50 L 60 -50 L 60 50 Z",
         "rotations M 0 50 L 0 0 L 0 -50 L 60 -50 L 60 0 L 60 50 Z"},
        {"cut in two, closed: one compound path", 1,
         "M 0 50 L 0 -50 L 30 -50 L 30 50 L 60 50 L 60 -80 L -30 -80 L -30 50 Z",
         "compound: rotations M 0 50 L 0 0 L 0 -50 L -30 -50 L -30 0 L -30 50 Z, "
         "rotations M 30 0 L 30 50 L 60 50 L 60 0 L 60 -50 L 30 -50 Z"},
        {"half a shape against the axis", 1, "M 10 0 L 100 0 L 100 50 L 10 50 Z",
         "rotations M 100 0 L 100 50 L 10 50 L 10 0 L 10 -50 L 100 -50 Z"},
        {"the same on the other side", 1, "M 10 0 L 100 0 L 100 -50 L 10 -50 Z",
         "rotations M 100 0 L 100 50 L 10 50 L 10 0 L 10 -50 L 100 -50 Z"},
        {"a whole sector", 2, "M 0 0 L 100 0 L 80 80 L 0 100 Z",
         "none M 100 0 L 80 80 L 0 100 L -80 80 L -100 0 L -80 -80 L 0 -100 L 80 -80 Z"},
        {"a square around the origin", 2, "M 50 50 L -50 50 L -50 -50 L 50 -50 Z",
         "none M 50 50 L 0 50 L -50 50 L -50 0 L -50 -50 L 0 -50 L 50 -50 L 50 0 Z"},
        {"along the axis: its own reflection", 1, "M 0 0 L 100 0", "rotations M 0 0 L 100 0"},
        {"along the axis on its way", 1, "M -50 50 L 0 0 L 100 0 L 150 50",
         "rotations M -50 50 L 0 0 L -50 -50, rotations M 0 0 L 100 0, "
         "rotations M 150 50 L 100 0 L 150 -50"},
        {"along an axis through the origin: one ray of it", 3, "M 100 0 L -80 0",
         "rotations M 100 0 L 0 0"},
        {"closed and flat on the axis", 1, "M -80 0 L 100 0 Z", "rotations M -80 0 L 100 0 Z"},
        {"beside the axis and onto it: that part is flat", 1, "M 0 50 L 40 0.004 L 80 5",
         "rotations M 0 50 L 40 0 L 0 -50, rotations M 40 0 L 80 0"},
        {"along two rays, too close to the origin for cutting", 2, "M 0.05 0 L 0 0 L 0 0.04",
         "rotations M 0.05 0 L 0 0 L 0 0.04"},
        {"a bulge off the axis that is flatter in its middle", 1, "M 0 0 C 30 0.0063 70 0 100 0",
         "rotations M 0 0 C 30 0.01 70 0 100 0 C 70 0 30 -0.01 0 0 Z"},
        {"a bulge right behind an anchor on the axis is the anchor's own", 1,
         "M 0 0 C 100 8 200 -9000 300 50",
         "rotations M 0 0 C 99.82 -7.99 199.63 8966.73 299.45 0 "
         "C 199.63 -8966.73 99.82 7.99 0 0 Z"},
        {"a single anchor", 3, "M 100 50", "all M 100 50"},
        {"a single anchor near an axis", 3, "M 20 5", "rotations M 20 0"},
        {"touching with an anchor: not cut", 1, "M -50 50 L 0 0 L 50 50",
         "all M -50 50 L 0 0 L 50 50"},
        {"a tip through the axis by less than shows: not cut", 1, "M -5 50 L 0 -0.02 L 5 50",
         "all M -5 50 L 0 -0.02 L 5 50"},
        {"a tip that reaches farther: cut", 1, "M -50 50 L 0 -50 L 50 50",
         "rotations M -50 50 L -25 0 L -50 -50, rotations M 50 50 L 25 0 L 50 -50"},
        {"touching along a curve: not cut", 1, "M 0 40 C 40 -13.33 80 -13.33 120 40 Z",
         "all M 0 40 C 40 -13.33 80 -13.33 120 40 Z"},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Mirror mirror({.axisCount = row.axisCount}, kSnapDistance);
        const MirroredPath result = mirror.mirror(shapeOf(row.source));
        CHECK(outcomeOf(result) == row.expected);
        CHECK(result.unchanged == (textOf(result.contours[0].shape) == row.source));
        for (const Contour& contour : result.contours) {
            const MirroredPath again = mirror.mirror(contour.shape);
            CHECK(again.unchanged);
            CHECK(again.contours[0].images == contour.images);
        }
    }
}

TEST_CASE("a stretch along an axis sheds the handles of the curves beside it") {
    Mirror mirror({.axisCount = 1}, kSnapDistance);
    const MirroredPath result =
        mirror.mirror(shapeOf("M -50 50 C -50 20 -20 0 0 0 L 100 0 C 120 0 150 20 150 50"));
    REQUIRE(result.contours.size() == 3);
    const std::vector<PathSegment>& along = result.contours[1].shape.segments;
    REQUIRE(along.size() == 2);
    CHECK(along.front().in == along.front().anchor);
    CHECK(along.back().out == along.back().anchor);
}

TEST_CASE("the anchors at which images are joined are known") {
    struct Row {
        std::string what;
        int axisCount;
        std::string source;
    };
    const Row rows[] = {
        {"open", 1, "M 0 50 L 20 60 L 100 5"},
        {"closed", 1, "M 10 5 L 50 50 L 70 50 L 100 3"},
        {"from ray to ray", 3, "M 100 0 L 120 40 L 90 80 L 50 87"},
        {"cut, and begun where the source began", 2, "M 50 50 L -50 50 L -50 -50 L 50 -50 Z"},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        const PageAxes axes{.axisCount = row.axisCount};
        Mirror mirror(axes, kSnapDistance);
        const MirroredPath result = mirror.mirror(shapeOf(row.source));
        const Contour& contour = result.contours[0];
        REQUIRE(contour.jointSpacing > 0);
        const std::size_t last = contour.shape.segments.size() - 1;
        for (std::size_t i = 0; i <= last; ++i) {
            if (!contour.shape.closed && (i == 0 || i == last)) continue; // ends join nothing
            const Point folded = foldIntoSector0(axes, contour.shape.segments[i].anchor);
            const bool onAxis = Wedge{axes}.rayAt(folded) != Ray::None;
            CHECK(onAxis == (i % contour.jointSpacing == contour.firstJoint));
        }
    }
}

TEST_CASE("a compound path that is only carried into another sector is known as that") {
    struct Row {
        std::string what;
        std::vector<std::string> members;
        bool carried;
    };
    const Row rows[] = {
        {"all beyond the axis",
         {"M 0 -20 L 50 -20 L 50 -60 Z", "M 70 -20 L 90 -20 L 90 -60 Z"},
         true},
        {"some of it", {"M 0 -20 L 50 -20 L 50 -60 Z", "M 70 20 L 90 20 L 90 60 Z"}, false},
        {"it crosses the axis", {"M 0 -20 L 50 20 L 50 -60 Z"}, false},
        {"an end moves", {"M 0 -20 L 50 -20 L 50 -60 Z", "M 70 -50 L 90 -5"}, false},
        {"too small to be cut",
         {"M 0 -20 L 50 -20 L 50 -60 Z", "M 70 -2 L 70.1 -2 L 70 -2.1 Z"},
         false},
        {"one on the axis, with images of its own",
         {"M 0 20 L 50 20 L 50 60 Z", "M 10 0 L 90 0 Z"},
         false},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        std::vector<PathShape> members;
        for (const std::string& member : row.members)
            members.push_back(shapeOf(member));
        Mirror mirror({.axisCount = 1}, kSnapDistance);
        CHECK(mirror.mirrorCompound(members).carried == row.carried);
    }
}

TEST_CASE("the active sector is told by the first curve that is clear of the axes") {
    Mirror mirror({.axisCount = 3}, kSnapDistance);
    CHECK(mirror.mirror(shapeOf("M 100 50 L 100 -500")).sector == 5);
    CHECK(mirror.mirror(shapeOf("M 10 0 L 100 0 L 100 -50 L 10 -10 Z")).sector == 5);
    CHECK(mirror.mirror(shapeOf("M -100 -50 L -120 -30")).sector == 3);
}

TEST_CASE("contours that need different copies of one compound path get them at once") {
    // N = 2: an arc from axis to axis, and a bite that crosses the x axis only.
    const PathShape source = shapeOf("M 200 200 L -200 200 L -200 -200 L 200 -200 L 200 -50 "
                                     "L 100 -50 L 100 50 L 150 50 L 150 -20 L 180 -20 L 180 200 Z");
    Mirror mirror({.axisCount = 2}, kSnapDistance);
    const MirroredPath result = mirror.mirror(source);
    CHECK(result.compound);
    CHECK(result.contours.size() == 3); // the outer ring, the bite and its rotation
    for (const Contour& contour : result.contours)
        CHECK(contour.images == Images::None);
    CHECK(mirror.mirrorCompound(shapesOf(result)).unchanged);
}

TEST_CASE("each island of a compound path is mirrored from its own sector, and none is lost") {
    struct Row {
        std::string what;
        std::vector<std::string> members;
        FillRule rule;
        std::string expected;
    };
    // One axis, the x axis.
    const Row rows[] = {
        {"squares on both sides",
         {"M 0 20 L 50 20 L 50 60 Z", "M 10 -30 L 20 -40 L 30 -30 Z"},
         FillRule::NonZero,
         "compound: all M 0 20 L 50 20 L 50 60 Z, all M 10 30 L 20 40 L 30 30 Z"},
        {"one of them across the axis: the others get their images at once",
         {"M 0 20 L 50 20 L 50 60 Z", "M 110 30 L 120 -30 L 130 30 Z"},
         FillRule::NonZero,
         "compound: none M 0 20 L 50 20 L 50 60 Z, none M 0 -20 L 50 -60 L 50 -20 Z, "
         "none M 110 30 L 115 0 L 110 -30 L 130 -30 L 125 0 L 130 30 Z"},
        {"images of curves run backwards and draw the same",
         {"M 0 20 C 10 40 40 50 50 20 Z", "M 110 30 L 120 -30 L 130 30 Z"},
         FillRule::NonZero,
         "compound: none M 0 20 C 10 40 40 50 50 20 Z, none M 0 -20 L 50 -20 C 40 -50 10 -40 0 -20 "
         "Z, "
         "none M 110 30 L 115 0 L 110 -30 L 130 -30 L 125 0 L 130 30 Z"},
        {"a first member without a curve tells nothing",
         {"M 10 -300", "M 0 -400 L 0 400 L 100 400 L 100 -400 Z", "M 20 30 L 40 30 L 40 60 Z"},
         FillRule::NonZero,
         "compound: none M 10 300, none M 10 -300, "
         "none M 0 400 L 0 0 L 0 -400 L 100 -400 L 100 0 L 100 400 Z"},
        {"a hole goes with its outline",
         {"M 0 50 L 0 -50 L 90 -50 L 90 50 Z", "M 10 -20 L 40 -20 L 40 -40 L 10 -40 Z"},
         FillRule::NonZero,
         "compound: rotations M 0 50 L 0 0 L 0 -50 L 90 -50 L 90 0 L 90 50 Z"},
        {"what is filled in a hole is an island",
         {"M 0 50 L 0 -50 L 90 -50 L 90 50 Z", "M 10 40 L 80 40 L 80 -40 L 10 -40 Z",
          "M 20 -10 L 20 -20 L 30 -20 L 30 -10 Z"},
         FillRule::NonZero,
         "compound: none M 0 50 L 0 0 L 0 -50 L 90 -50 L 90 0 L 90 50 Z, "
         "none M 10 40 L 80 40 L 80 0 L 80 -40 L 10 -40 L 10 0 Z, "
         "none M 20 10 L 20 20 L 30 20 L 30 10 Z, none M 20 -10 L 30 -10 L 30 -20 L 20 -20 Z"},
        {"dots that are their own images, and one that gets its image at once",
         {"M 20 -0.1 L 20.1 0 L 20 0.1 Z", "M 40 0 L 40.1 0.1 L 39.9 0.1 Z"},
         FillRule::NonZero,
         "compound: none M 20 -0.1 L 20.1 0 L 20 0.1 Z, none M 40 0 L 40.1 0.1 L 39.9 0.1 Z, "
         "none M 40 0 L 39.9 -0.1 L 40.1 -0.1 Z"},
        {"what overlaps an outline belongs to it by one rule, not by the other",
         {"M 0 50 L 0 -50 L 90 -50 L 90 50 Z", "M 10 40 L 10 -40 L 80 -40 L 80 40 Z",
          "M 20 -10 L 20 -20 L 30 -20 L 30 -10 Z"},
         FillRule::EvenOdd,
         "compound: none M 0 50 L 0 0 L 0 -50 L 90 -50 L 90 0 L 90 50 Z, "
         "none M 10 40 L 10 0 L 10 -40 L 80 -40 L 80 0 L 80 40 Z, "
         "none M 20 10 L 20 20 L 30 20 L 30 10 Z, none M 20 -10 L 30 -10 L 30 -20 L 20 -20 Z"},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        std::vector<PathShape> members;
        for (const std::string& member : row.members)
            members.push_back(shapeOf(member));
        const PageAxes axes{.axisCount = 1};
        Mirror mirror(axes, kSnapDistance);
        const MirroredPath result = mirror.mirrorCompound(members, row.rule);
        CHECK(outcomeOf(result) == row.expected);
        const MirroredPath again = mirror.mirrorCompound(shapesOf(result), row.rule);
        CHECK(again.unchanged);
        CHECK(imageTransforms(axes, again.contours[0].images).size() ==
              imageTransforms(axes, result.contours[0].images).size());
    }
}

TEST_CASE("a join is smooth only where the path meets the axis squarely") {
    Mirror mirror({.axisCount = 1}, 0.0);
    const MirroredPath squarely = mirror.mirror(shapeOf("M 0 50 C 0 50 30 30 30 0"));
    CHECK_FALSE(squarely.contours[0].shape.segments[1].corner);
    const MirroredPath slanting = mirror.mirror(shapeOf("M 0 50 C 0 50 30 30 40 0"));
    CHECK(slanting.contours[0].shape.segments[1].corner);
    const MirroredPath along = mirror.mirror(shapeOf("M 0 50 C 0 50 60 0 30 0"));
    CHECK(along.contours[0].shape.segments[1].corner); // a tip, though its handles lie on one line
    const MirroredPath both = mirror.mirror(shapeOf("M 60 0 C 60 30 30 30 20 0"));
    CHECK_FALSE(both.contours[0].shape.segments[0].corner);
    CHECK(both.contours[0].shape.segments[1].corner);
}

TEST_CASE("what is selected stays selected on the images") {
    PathShape source = shapeOf("M 0 50 L 20 60 L 100 0");
    source.segments[0].selection = selection::kAnchor;
    source.segments[1].selection = selection::kOut;
    Mirror mirror({.axisCount = 1}, kSnapDistance);
    const MirroredPath result = mirror.mirror(source);
    std::vector<int> selections;
    for (const PathSegment& segment : result.contours[0].shape.segments)
        selections.push_back(segment.selection);
    CHECK(selections == std::vector<int>{selection::kAnchor, selection::kOut, selection::kNone,
                                         selection::kIn, selection::kAnchor});
}

// Once in some ten thousand paths a curve leaves an axis by a tolerance to the last digit, and
// rounding tips the scales when it is mirrored again. Everything else must stay as it is.
TEST_CASE("mirroring a result again changes nothing, bit for bit") {
    constexpr int kPaths = 6000;
    constexpr int kTippedScales = 1;
    Random random;
    int changed = 0;
    for (int i = 0; i < kPaths; ++i) {
        CAPTURE(i);
        const PageAxes axes = random.axes();
        const double size = random.size();
        const PathShape source = random.path(axes, random.coin(), size);
        Mirror mirror(axes, random.real(0.0, size / 5.0));
        const MirroredPath result = mirror.mirror(source);
        REQUIRE_FALSE(result.contours.empty());
        if (result.compound)
            changed += mirror.mirrorCompound(shapesOf(result)).unchanged ? 0 : 1;
        else
            for (const Contour& contour : result.contours)
                changed += mirror.mirror(contour.shape).unchanged ? 0 : 1;
    }
    CHECK(changed <= kTippedScales);
}

TEST_CASE("further runs never make more objects, whatever the size, the place and the axes") {
    struct Object {
        std::vector<PathShape> members;
        bool compound = false;
    };
    constexpr int kDrawings = 1200;
    constexpr int kRuns = 4;
    Random random;
    for (int i = 0; i < kDrawings; ++i) {
        CAPTURE(i);
        PageAxes axes = random.axes();
        axes.origin = rounded({8.0 * axes.origin.x, 8.0 * axes.origin.y}); // up to 16,000
        const double size = 0.01 * std::pow(random.size(), 5.0 / 3.0);     // from half a point
        const double tiny = i % 2 == 0 ? 0.02 : 1.0;
        Mirror mirror(axes, random.coin() ? 0.0 : random.real(0.0, size / 5.0));
        std::vector<Object> objects(1);
        objects.front().compound = i % 4 == 0 && axes.axisCount <= 12;
        for (int member = 0; member == 0 || (objects.front().compound && member < 3); ++member)
            objects.front().members.push_back(random.path(axes, random.coin(), size * tiny));

        std::size_t before = 0;
        for (int run = 0; run < kRuns; ++run) {
            std::vector<Object> next;
            std::size_t count = 0;
            for (const Object& object : objects) {
                const MirroredPath result = object.compound ? mirror.mirrorCompound(object.members)
                                                            : mirror.mirror(object.members.front());
                for (const Contour& contour : result.contours)
                    count += 1 + imageTransforms(axes, contour.images).size();
                if (result.compound)
                    next.push_back({shapesOf(result), true});
                else
                    for (const Contour& contour : result.contours)
                        next.push_back({{contour.shape}});
            }
            if (run > 0) REQUIRE(count <= before);
            before = count;
            objects = std::move(next);
        }
    }
}

TEST_CASE("the rosette winds around every point as the source does around the folded one") {
    Random random;
    int compared = 0;
    for (int i = 0; i < 600; ++i) {
        CAPTURE(i);
        PageAxes axes = random.axes();
        axes.axisCount = random.integer(1, 8);
        const double size = random.size();
        const PathShape source = random.path(axes, true, size);
        Mirror mirror(axes, kSnapDistance);
        const MirroredPath result = mirror.mirror(source);
        const std::vector<PathShape> rosette = rosetteOf(axes, result);
        PathShape folded = source;
        for (PathSegment& segment : folded.segments)
            segment = transformed(segment, foldMatrix(axes, result.sector));
        for (int sample = 0; sample < 8; ++sample) {
            const Point point = random.point(axes.origin, size);
            const Winding whole = windingAround(rosette, point);
            const Winding part = windingAround({&folded, 1}, foldIntoSector0(axes, point));
            if (std::min(whole.nearest, part.nearest) < size / 50.0)
                continue; // the polygons that stand for the curves may pass on the other side
            ++compared;
            REQUIRE(std::abs(whole.turns - part.turns) < 0.01);
        }
    }
    CHECK(compared > 1500);
}

TEST_CASE("a rosette is invariant under every reflection and has no doubled anchors") {
    Random random;
    for (int i = 0; i < 300; ++i) {
        CAPTURE(i);
        PageAxes axes = random.axes();
        axes.axisCount = random.integer(1, 12);
        const PathShape source = random.path(axes, random.coin(), random.size());
        Mirror mirror(axes, kSnapDistance);
        std::vector<Point> anchors;
        for (const PathShape& shape : rosetteOf(axes, mirror.mirror(source))) {
            for (std::size_t k = 0; k < curveCount(shape); ++k)
                REQUIRE(distance(curveAt(shape, k).p0, curveAt(shape, k).p3) > 0.0);
            for (const PathSegment& segment : shape.segments)
                anchors.push_back(segment.anchor);
        }
        const Matrix reflection = rayReflection(axes, random.integer(0, sectorCount(axes) - 1));
        for (const Point anchor : anchors) {
            const Point image = apply(reflection, anchor);
            REQUIRE(std::ranges::any_of(
                anchors, [&](Point other) { return distance(other, image) < 0.01; }));
        }
    }
}

TEST_CASE("no end within the snapping distance stays open") {
    Random random;
    int ends = 0;
    while (ends < 10000) {
        CAPTURE(ends);
        const PageAxes axes = random.axes();
        // From deep in sector 0 to beside one of its rays; near the origin the sector is narrow.
        const double radius = random.real(200.0, 1500.0);
        const bool first = random.coin();
        const double rayDirection = rayAngle(axes, first ? 0 : sectorCount(axes) - 1);
        const double inwards = first ? 1.0 : -1.0;
        const double depth = random.real(-1.0, 1.0) * 0.999 * kSnapDistance;
        const Point middle = axes.origin + 2000.0 * direction(axes.angle + sectorAngle(axes) / 2.0);
        const Vector along = direction(rayDirection);
        const Point end =
            rounded(axes.origin + radius * along + (depth * inwards) * Vector{-along.y, along.x});
        PathShape source{{{rounded(middle), rounded(middle), rounded(middle)}, {end, end, end}}};
        if (random.coin()) std::ranges::reverse(source.segments);
        Mirror mirror(axes, kSnapDistance);
        const MirroredPath result = mirror.mirror(source);
        REQUIRE(result.contours.size() == 1);
        REQUIRE(result.contours[0].images == Images::Rotations);
        REQUIRE(result.contours[0].shape.segments.size() == 3);
        ++ends;
    }
}

TEST_CASE("time grows with the number of segments, not its square") {
    const PageAxes axes{.angle = 0.1, .axisCount = 12};
    const auto secondsFor = [&](int anchors) {
        PathShape star{{}, true}; // crosses every axis many times
        for (int i = 0; i < anchors; ++i) {
            const Point anchor =
                rounded(Point{} + (i % 2 == 0 ? 300.0 : 100.0) * direction(i * 0.7));
            star.segments.push_back({anchor, anchor, anchor});
        }
        Mirror mirror(axes, kSnapDistance);
        // Processor time, so that other running programs do not count.
        const std::clock_t start = std::clock();
        const MirroredPath result = mirror.mirror(star);
        const std::clock_t end = std::clock();
        REQUIRE(result.contours.size() > 1);
        return static_cast<double>(end - start) / CLOCKS_PER_SEC;
    };
    CHECK(secondsFor(30000) < 40.0 * std::max(secondsFor(3000), 0.001));
}
