#include "tool/drawing/OnCanvasDialog.h"

#include "tests/tool/Annotated.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

/// The rectangles and texts of a dialog, relative to its corner, in the order in which they are
/// drawn.
std::string dialogDrawn(const easel::DisplayList& list, DialogPosition corner) {
    std::string lines;
    for (easel::DrawCommand each : list) {
        if (each.kind != Kind::Rect && each.kind != Kind::Text) continue;
        for (AIPoint& point : each.points)
            point = {point.h - corner.x, point.v - corner.y};
        lines += easel::dump({each});
    }
    return lines;
}

easel::DrawCommand buttonFill(const easel::DisplayList& list, int button) {
    std::vector<easel::DrawCommand> fills = ofKind(list, Kind::Rect);
    std::erase_if(fills, [](const easel::DrawCommand& each) { return !each.fill; });
    return fills.at(static_cast<std::size_t>(button) + 1); // the title comes first
}

bool sameColour(const AIRGBColor& a, const AIRGBColor& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

} // namespace

TEST_CASE("the dialog is drawn row by row, title first") {
    Drawing session{/*selected*/ true};
    thePlugin->tool.dialog = {700, 90};
    CHECK(dialogDrawn(drawn(session), {700, 90}) == R"text(rect 0,0 191,13 #9c9c9c filled
rect 0,0 191,13 #2e2e2e
rect 0,13 191,42 #f2f2f2 filled
rect 0,13 191,42 #2e2e2e
text 7,32 "Apply to Selection" #2e2e2e
rect 0,42 191,71 #f2f2f2 filled
rect 0,42 191,71 #2e2e2e
text 7,61 "Apply to Layer (persistent)" #2e2e2e
rect 0,71 191,100 #f2f2f2 filled
rect 0,71 191,100 #2e2e2e
text 7,90 "Cancel" #2e2e2e
)text");
}

TEST_CASE("the button under the cursor stands out; what cannot act is dimmed and does not") {
    for (const bool selected : {true, false}) {
        INFO(selected);
        Drawing session{selected};
        const AIRGBColor& hovered = colours::kLight.hoveredFill;
        const DialogItem items[] = {DialogItem::ApplyToSelection, DialogItem::ApplyToLayer,
                                    DialogItem::Cancel};
        for (int button = 0; button < 3; ++button) {
            thePlugin->tool.hoverItem = items[button];
            const easel::DisplayList list = drawn(session);
            for (int other = 0; other < 3; ++other) {
                const bool stands = other == button && (selected || button != 0);
                CHECK(sameColour(buttonFill(list, other).style.colour, hovered) == stands);
            }
            const AIRGBColor text = ofKind(list, Kind::Text).front().style.colour;
            CHECK(sameColour(text, colours::kLight.dimmedText) != selected);
        }
    }
}

TEST_CASE("moving the dialog has both places drawn anew") {
    Drawing session{/*selected*/ true};
    static_cast<void>(drawn(session)); // nothing is invalid now
    thePlugin->tool.dialog = {100, 200};
    ToolSession tool = toolSession();
    moveDialog(tool, {-30, 12});
    CHECK(thePlugin->tool.dialog == DialogPosition{70, 212});
    const std::vector<AIRect>& invalid = session.host.annotators.invalid;
    REQUIRE(invalid.size() == 2);
    const Point corners[] = {{100, 200}, {70, 212}};
    for (std::size_t i = 0; i < 2; ++i) {
        CHECK(contains(widen(invalid[i]), corners[i]));
        CHECK(contains(widen(invalid[i]), corners[i] + Vector{191, 104}));
    }
}

TEST_CASE("while the host scrolls under a drag the dialog is left out, the axes are not") {
    Drawing session{/*selected*/ true};
    AIAnnotatorDrawer drawer;
    AIAnnotatorMessage message = drawMessage(session, &drawer);
    message.updateData = reinterpret_cast<void*>(1);
    CHECK(session.send("AI Annotation", "AI Draw", message) == kNoErr);
    CHECK(textsIn(drawer.list).empty());
    CHECK(axisLines(drawer.list).size() == 3);
}

TEST_CASE("axes that came without a press have a dialog as soon as the mouse moves") {
    Drawing session{/*selected*/ true};
    session.tool().zone = ToolZone::Canvas;
    CHECK(textsIn(drawn(session)).empty());
    session.host.track({.at = session.onButton(DialogItem::Cancel)});
    CHECK(session.tool().zone == ToolZone::DialogButton);
    CHECK(session.tool().hoverItem == DialogItem::Cancel);
    CHECK_FALSE(textsIn(drawn(session)).empty());
}
