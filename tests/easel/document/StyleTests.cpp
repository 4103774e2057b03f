#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

TEST_CASE("the members of a compound path have one style") {
    const Drawing drawing;
    const AIArtHandle compound = drawing.make(kCompoundPathArt);
    const AIArtHandle a = drawing.make(kPathArt, kPlaceInsideOnTop, compound);
    const AIArtHandle b = drawing.make(kPathArt, kPlaceInsideOnTop, compound);
    const AIArtHandle red = drawing.make(kPathArt);
    session().artOf(red).write().style.write().path.fill.color = rgbColor(1, 0, 0);
    CHECK(art().TransferAttributes(red, a, kTransferAll) == kNoErr);
    CHECK(styleCarrier(session().artOf(b)).style().path.fill.color.c.rgb.red == 1);
    CHECK(session().artOf(compound).style().path.fill.color.c.rgb.red == 1);
    CHECK(isAttribute(a, kArtPartOfCompound));
}

TEST_CASE("members stop clipping when their group does") {
    const Drawing drawing;
    const auto& groups = suite<AIGroupSuite>(kAIGroupSuite, kAIGroupSuiteVersion);
    const AIArtHandle group = drawing.make(kGroupArt);
    const AIArtHandle mask = drawing.makePath({{0, 0}, {1, 0}, {1, 1}});
    drawing.moveInto(group, mask);
    REQUIRE(groups.SetGroupClipped(group, 1) == kNoErr);
    REQUIRE(art().SetArtUserAttr(mask, kArtIsClipMask, kArtIsClipMask) == kNoErr);
    AIBoolean isClip = 0;
    CHECK(path().GetPathIsClip(mask, &isClip) == kNoErr);
    CHECK(isClip == 1);
    CHECK(path().SetPathSegmentCount(mask, 1) == kNoErr);
    CHECK(path().GetPathIsClip(mask, &isClip) == kNoErr);
    CHECK(isClip == 0); // a point clips nothing
    CHECK(groups.SetGroupClipped(group, 0) == kNoErr);
    CHECK_FALSE(isAttribute(mask, kArtIsClipMask));
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
