#include "tests/easel/document/Plugin.h"

#include <cmath>
#include <limits>

namespace easel::tests {
namespace {

AIPathSegment corner(AIReal h, AIReal v) { return {{h, v}, {h, v}, {h, v}, 1}; }

TEST_CASE("ranges outside a path are refused and change nothing") {
    const Drawing drawing;
    const AIArtHandle made = drawing.makePath({{0, 0}, {1, 0}, {2, 0}});
    const AIArtHandle group = drawing.make(kGroupArt);
    const std::string before = dump(drawing.document);
    std::vector<AIPathSegment> buffer(8, corner(9, 9));
    ai::int16 count = 0;
    CHECK(path().GetPathSegments(made, 1, 3, buffer.data()) == kBadParameterErr);
    CHECK(path().GetPathSegments(made, -1, 1, buffer.data()) == kBadParameterErr);
    CHECK(path().SetPathSegments(made, 4, 1, buffer.data()) == kBadParameterErr);
    CHECK(path().SetPathSegments(made, 0, -1, buffer.data()) == kBadParameterErr);
    CHECK(path().SetPathSegments(made, 0, 1, nullptr) == kBadParameterErr);
    CHECK(path().SetPathSegmentCount(made, -1) == kBadParameterErr);
    CHECK(path().GetPathSegmentCount(group, &count) == kBadParameterErr);
    buffer[0].in.v = std::numeric_limits<AIReal>::quiet_NaN();
    CHECK(path().SetPathSegments(made, 0, 1, buffer.data()) == kBadParameterErr);
    CHECK(dump(drawing.document) == before);
}

TEST_CASE("a path takes 32000 segments and not one more, in any way of adding") {
    const Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    const std::vector<AIPathSegment> many(32001, corner(1, 1));
    CHECK(path().SetPathSegmentCount(made, 32001) == kTooManySegmentsErr);
    CHECK(path().SetPathSegments(made, 0, 32001, many.data()) == kTooManySegmentsErr);
    CHECK(path().SetPathSegments(made, 0, 32000, many.data()) == kNoErr);
    CHECK(path().SetPathSegments(made, 32000, 1, many.data()) == kTooManySegmentsErr);
    ai::int16 count = 0;
    CHECK(path().GetPathSegmentCount(made, &count) == kNoErr);
    CHECK(count == 32000);
}

TEST_CASE("the selection of anchors makes that of the path") {
    const Drawing drawing;
    const AIArtHandle made = drawing.makePath({{0, 0}, {1, 0}, {2, 0}});
    const auto selected = [made](ai::int16 index) {
        ai::int16 selection = -1;
        CHECK(path().GetPathSegmentSelected(made, index, &selection) == kNoErr);
        return selection;
    };
    CHECK(path().SetPathSegmentSelected(made, 2, kSegmentPointSelected) == kNoErr);
    CHECK(isAttribute(made, kArtSelected));
    CHECK_FALSE(isAttribute(made, kArtFullySelected));
    for (const ai::int16 other : {ai::int16{0}, ai::int16{1}})
        CHECK(path().SetPathSegmentSelected(made, other, kSegmentPointSelected) == kNoErr);
    CHECK(isAttribute(made, kArtFullySelected));
    CHECK(path().SetPathSegmentSelected(made, 0, kSegmentInSelected) == kNoErr);
    CHECK(selected(0) == kSegmentInSelected);
    CHECK_FALSE(isAttribute(made, kArtFullySelected));
    CHECK(path().SetPathSegmentSelected(made, 1, 5) == kBadParameterErr);
    CHECK(path().SetPathSegmentSelected(made, 3, 1) == kBadParameterErr);
}

/// The circle of four quarters, whose handles are the usual approximation.
AIArtHandle makeCircle(const Drawing& drawing, AIReal radius) {
    const AIReal k = radius * 0.5522848F;
    const AIReal r = radius;
    const AIPathSegment quarters[] = {
        {{r, 0}, {r, -k}, {r, k}, 0},
        {{0, r}, {k, r}, {-k, r}, 0},
        {{-r, 0}, {-r, k}, {-r, -k}, 0},
        {{0, -r}, {-k, -r}, {k, -r}, 0},
    };
    const AIArtHandle made = drawing.make(kPathArt);
    REQUIRE(path().SetPathSegments(made, 0, 4, quarters) == kNoErr);
    REQUIRE(path().SetPathClosed(made, 1) == kNoErr);
    return made;
}

TEST_CASE("the bounds of a circle are those of a circle") {
    const Drawing drawing;
    const AIArtHandle circle = makeCircle(drawing, 100);
    AIRealRect bounds{};
    CHECK(art().GetArtTransformBounds(circle, nullptr, kNoStrokeBounds, &bounds) == kNoErr);
    CHECK(bounds.left == -100);
    CHECK(bounds.top == 100);
    CHECK(art().GetArtBounds(circle, &bounds) == kNoErr); // with half of the stroke
    CHECK(bounds.right == 100.5F);
}

TEST_CASE("bounds follow the curve, not its handles, unless they are asked for") {
    const Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    const AIPathSegment arch[] = {{{0, 0}, {0, 0}, {0, 4}, 1}, {{3, 0}, {3, 4}, {3, 0}, 1}};
    REQUIRE(path().SetPathSegments(made, 0, 2, arch) == kNoErr);
    AIRealRect bounds{};
    CHECK(art().GetArtTransformBounds(made, nullptr, kNoStrokeBounds, &bounds) == kNoErr);
    CHECK(bounds.top == 3); // three quarters of the way to the handles
    CHECK(art().GetArtTransformBounds(made, nullptr, kControlBounds, &bounds) == kNoErr);
    CHECK(bounds.top == 4);
    AIRealMatrix twice{2, 0, 0, 2, 1, 1};
    CHECK(art().GetArtTransformBounds(made, &twice, kNoStrokeBounds, &bounds) == kNoErr);
    CHECK(bounds.top == 7);
    CHECK(art().GetArtTransformBounds(made, &twice, kControlBounds, &bounds) == kBadParameterErr);
    CHECK(path().SetPathGuide(made, 1) == kNoErr);
    CHECK(art().GetArtBounds(made, &bounds) == kNoErr);
    CHECK(bounds.top == 0); // guides are left out: nothing counts
}

} // namespace
} // namespace easel::tests
