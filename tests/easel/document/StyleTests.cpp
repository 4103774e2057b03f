#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

const AIPathStyleSuite& styles() {
    return suite<AIPathStyleSuite>(kAIPathStyleSuite, kAIPathStyleSuiteVersion);
}

AIPathStyle styleOf(AIArtHandle handle) {
    AIPathStyle style{};
    CHECK(styles().GetPathStyle(handle, &style) == kNoErr);
    return style;
}

TEST_CASE("the members of a compound path have one style") {
    const Drawing drawing;
    const AIArtHandle compound = drawing.make(kCompoundPathArt);
    const AIArtHandle a = drawing.make(kPathArt, kPlaceInsideOnTop, compound);
    const AIArtHandle b = drawing.make(kPathArt, kPlaceInsideOnTop, compound);
    AIPathStyle red = unpaintedStyle();
    red.fillPaint = 1;
    red.fill.color = rgbColor(1, 0, 0);
    CHECK(styles().SetPathStyle(a, &red) == kNoErr);
    CHECK(styleOf(b).fill.color.c.rgb.red == 1);
    CHECK(styleOf(compound).fill.color.kind == kThreeColor);
    CHECK(isAttribute(a, kArtPartOfCompound));
    CHECK(styles().GetPathStyle(drawing.make(kGroupArt), &red) == kBadParameterErr);
}

TEST_CASE("a gradient is told by its handle and matrix, and taken back the same way") {
    Drawing drawing;
    const Definition& gradient =
        drawing.document.addDefinition(Definition::Kind::Gradient, "sunset");
    const AIArtHandle source = drawing.makePath({{0, 0}});
    const AIArtHandle target = drawing.makePath({{1, 1}});
    ArtStyle& own = artOf(source).write().style.write();
    own.fillDefinition = &gradient;
    own.fillMatrix = {2, 0, 0, 2, 7, 8};
    AIPathStyle told = styleOf(source);
    CHECK(told.fill.color.kind == kGradient);
    CHECK(told.fill.color.c.b.gradient == gradient.handle());
    CHECK(styles().SetPathStyle(target, &told) == kNoErr);
    CHECK(artOf(target).style().fillDefinition == &gradient);
    CHECK(artOf(target).style().fillMatrix.tx == 7);
    told.fill.color.c.b.gradient = nullptr;
    CHECK(styles().SetPathStyle(target, &told) == kBadParameterErr);
    CHECK(artOf(target).style().fillDefinition == &gradient);
}

TEST_CASE("new paths are painted as the document's drawing tools paint") {
    const Drawing drawing;
    AIPathStyle initial = initialPathStyle();
    initial.stroke.width = 4;
    CHECK(styles().SetInitialPathStyle(&initial) == kNoErr);
    const AIArtHandle made = drawing.make(kPathArt);
    CHECK(styleOf(made).stroke.width == 4);
    CHECK(art().ArtHasStroke(made) == 1);
    CHECK(path().SetPathSegmentCount(made, 2) == kNoErr);
    CHECK(art().ArtHasFill(drawing.make(kGroupArt)) == 0);
}

TEST_CASE("members stop clipping when their group does") {
    const Drawing drawing;
    const auto& groups = suite<AIGroupSuite>(kAIGroupSuite, kAIGroupSuiteVersion);
    const AIArtHandle group = drawing.make(kGroupArt);
    const AIArtHandle mask = drawing.makePath({{0, 0}, {1, 0}, {1, 1}});
    REQUIRE(art().ReorderArt(mask, kPlaceInsideOnTop, group) == kNoErr);
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

TEST_CASE("names and notes are the object's own, a layer's name is its title") {
    const Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    HostText found;
    AIBoolean isDefault = 0;
    CHECK(art().GetArtName(made, found.string, &isDefault) == kNoErr);
    CHECK(isDefault == 1);
    const HostText petal("petal \xE2\x9D\x80");
    CHECK(art().SetArtName(made, petal.string) == kNoErr);
    CHECK(art().GetArtName(made, found.string, nullptr) == kNoErr);
    CHECK(readUtf8(found.string) == "petal \xE2\x9D\x80");
    const AIArtHandle group = drawing.layerGroup().handle();
    CHECK(art().GetArtName(group, found.string, &isDefault) == kNoErr);
    CHECK(readUtf8(found.string) == "Layer 1");
    CHECK(isDefault == 0);
    CHECK(art().HasNote(made) == 0);
    CHECK(art().SetNote(made, petal.string) == kNoErr);
    CHECK(art().HasNote(made) == 1);
    art().DeleteNote(made);
    CHECK(art().HasNote(made) == 0);
}

TEST_CASE("what a plug-in group stores is bounded and read in ranges") {
    const Drawing drawing;
    const auto& groups = suite<AIPluginGroupSuite>(kAIPluginGroupSuite, kAIPluginGroupSuiteVersion);
    const AIArtHandle plugin = drawing.make(kPluginArt);
    char bytes[] = "abcdef";
    CHECK(groups.SetPluginArtDataCount(plugin, 32769) == fourCharacterCode("FULL"));
    CHECK(groups.SetPluginArtDataCount(plugin, 6) == kNoErr);
    CHECK(groups.SetPluginArtDataRange(plugin, bytes, 2, 5) == kBadParameterErr);
    CHECK(groups.SetPluginArtDataRange(plugin, bytes, 2, 4) == kNoErr);
    char read[5] = {};
    CHECK(groups.GetPluginArtDataRange(plugin, read, 2, 4) == kNoErr);
    CHECK(std::string(read) == "abcd");
    CHECK(groups.GetPluginArtDataRange(plugin, read, ~std::size_t{0}, 2) == kBadParameterErr);
}

TEST_CASE("rectangles are empty, joined, cut and aligned with y upwards") {
    const AIRealRect a{0, 10, 10, 0};
    const AIRealRect b{5, 20, 15, 5};
    const AIRealRect apart{11, 5, 12, 1};
    AIRealRect result{};
    CHECK(math().AIRealRectIntersect(&a, &b, &result) == 1);
    CHECK(result.left == 5);
    CHECK(result.top == 10);
    CHECK(result.bottom == 5);
    CHECK(math().AIRealRectIntersect(&a, &apart, &result) == 0);
    CHECK(math().AIRealRectEmpty(&result) == 1);
    math().AIRealRectUnion(&a, &b, &result);
    CHECK(math().AIRealRectInAIRealRect(&a, &result) == 1);
    CHECK(math().AIRealRectInAIRealRect(&result, &a) == 0);
    math().AIRealRectInset(&result, 1, 2); // shrinks
    CHECK(result.top == 18);
    CHECK(result.bottom == 2);
    const AIRealPoint edge{10, 5};
    CHECK(math().AIRealPointInAIRealRect(&edge, &a) == 1);
    const AIRealRect odd{0.5F, 9.5F, 9.5F, 0.5F};
    math().AIRealRectAlign(&odd, &result);
    CHECK(result.left == 0);
    CHECK(result.top == 10);
    CHECK(result.right == 10);
    CHECK(result.bottom == 0);
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
