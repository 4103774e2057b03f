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

TEST_CASE("bounds follow the curve, not its handles, unless they are asked for") {
    const Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    const AIPathSegment arch[] = {{{0, 0}, {0, 0}, {0, 4}, 1}, {{3, 0}, {3, 4}, {3, 0}, 1}};
    REQUIRE(path().SetPathSegments(made, 0, 2, arch) == kNoErr);
    AIRealRect bounds{};
    CHECK(art().GetArtTransformBounds(made, nullptr, kNoStrokeBounds, &bounds) == kNoErr);
    CHECK(bounds.top == 3); // three quarters of the way to the handles
    CHECK(art().GetArtBounds(made, &bounds) == kNoErr);
    CHECK(bounds.top == 3.5F); // with half of the stroke
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

TEST_CASE("opaque art has the bounds of its box as its matrix shows it") {
    Drawing drawing;
    Art& text = createArt(drawing.document, kTextFrameArt, onTopOf(drawing.layerGroup()));
    ArtDetails& details = text.write().details.write();
    details.box = {0, 10, 20, 0};
    details.matrix = {0, 1, -1, 0, 100, 50}; // turned by a right angle, then moved
    AIRealRect bounds{};
    CHECK(art().GetArtBounds(text.handle(), &bounds) == kNoErr);
    CHECK(bounds.left == 90);
    CHECK(bounds.right == 100);
    CHECK(bounds.top == 70);
    CHECK(bounds.bottom == 50);
}

} // namespace
} // namespace easel::tests
