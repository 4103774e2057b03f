#include "tests/tool/Drawing.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

constexpr ai::int32 kFinger = 16024;
constexpr ai::int32 kBase = 16021;

} // namespace

TEST_CASE("the cursor finds the items of the dialog, to the pixel") {
    struct Row {
        int x;
        int y;
        DialogItem item;
    };
    const Row rows[] = {
        {0, 1, DialogItem::Title},
        {191, 14, DialogItem::Title},
        {96, 15, DialogItem::ApplyToSelection},
        {96, 45, DialogItem::ApplyToLayer},
        {96, 104, DialogItem::Cancel},
        {96, 105, DialogItem::None},
        {192, 50, DialogItem::None},
    };
    Drawing session(/*selected*/ true);
    for (const auto& row : rows) {
        INFO(row.x, ",", row.y);
        session.host.track({.at = session.onDialog(row.x, row.y)});
        CHECK(session.tool().hoverItem == row.item);
        const bool isButton = row.item >= DialogItem::ApplyToSelection;
        CHECK((session.tool().zone == ToolZone::DialogButton) == isButton);
        CHECK((session.tool().zone == ToolZone::DialogTitle) == (row.item == DialogItem::Title));
        CHECK((session.host.user.cursor == kFinger) == (row.item != DialogItem::None));
    }
}

TEST_CASE("what the buttons do") {
    struct Row {
        const char* what;
        DialogItem button;
        bool selected;
        bool axesStay;
        bool onLayer;
        const char* undoText;
    };
    const Row rows[] = {
        {"mirror the selection", DialogItem::ApplyToSelection, true, false, false,
         "Undo Apply Symmetry Axes to Selection"},
        {"nothing is selected", DialogItem::ApplyToSelection, false, true, false, "Undo Draw"},
        {"attach to the layer", DialogItem::ApplyToLayer, false, true, true,
         "Undo Apply Symmetry Axes to Layer"},
        {"drop the axes", DialogItem::Cancel, true, false, false, "Undo Draw"},
        {"the title does nothing", DialogItem::Title, true, true, false, "Undo Draw"},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Drawing session(row.selected);
        const AIRealPoint place = row.button == DialogItem::Title ? session.onDialog(96, 7)
                                                                  : session.onButton(row.button);
        session.click(place);
        CHECK(hasAxes(session.tool()) == row.axesStay);
        CHECK(session.axes().onLayer == row.onLayer);
        CHECK(axesOnLayer(session.tool()) == row.onLayer);
        CHECK(session.host.undoText() == row.undoText);
        if (row.axesStay) continue;
        CHECK(session.tool().zone == ToolZone::Canvas);
        CHECK(near(session.origin(), widen(place))); // new axes follow the cursor
        CHECK(session.host.user.cursor == kBase);
    }
}

TEST_CASE("what counts is the button under the cursor when it is released") {
    Drawing session(/*selected*/ true);
    const auto slide = [&](AIRealPoint to) {
        const AIRealPoint from = session.onButton(DialogItem::ApplyToLayer);
        session.press(from.h, from.v);
        session.drag(to.h, to.v);
        session.release(to.h, to.v);
    };
    const std::string before = session.text();
    slide({150, -700}); // off the dialog
    CHECK(session.text() == before);
    CHECK(session.axes().provisional);
    slide(session.onButton(DialogItem::Cancel));
    CHECK(session.text() == before);
    CHECK_FALSE(session.axes().provisional);
}

TEST_CASE("the title strip moves the dialog by whole pixels, and it stays there") {
    Drawing session(/*selected*/ true);
    const DialogPosition before = session.tool().dialog;
    const SymmetryAxes axes = session.axes();
    const AIRealPoint from = session.onDialog(20, 7);
    session.dragFrom(from, {from.h + 60, from.v - 41});
    CHECK(session.tool().dialog == DialogPosition{before.x + 60, before.y + 41});
    CHECK(session.axes() == axes);
    CHECK(session.tool().zone == ToolZone::DialogTitle);
    session.host.view(nullptr).zoom = 2;
    const AIRealPoint zoomed = session.onDialog(20, 7);
    session.dragFrom(zoomed, {zoomed.h - 10, zoomed.v});
    CHECK(session.tool().dialog.x == before.x + 40);
}

TEST_CASE("the panel is told whenever what it shows may be another") {
    static int updates = 0;
    struct Row {
        std::string what;
        bool axesBefore;
        void (*act)(Drawing&);
    };
    const Row rows[] = {
        {"the tool is put away", true, [](Drawing& s) { s.host.selectTool(nullptr); }},
        {"one axis more", true, [](Drawing& s) { s.host.increaseDiameter(); }},
        {"new axes", false,
         [](Drawing& s) {
             s.dragFrom({520, -300}, {600, -300});
         }},
        {"a button", true, [](Drawing& s) { s.click(s.onButton(DialogItem::Cancel)); }},
        {"applied by the tool's icon", true, [](Drawing& s) { s.host.editToolOptions(); }},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Drawing session(/*selected*/ false);
        if (!row.axesBefore) session.click(session.onButton(DialogItem::Cancel));
        thePlugin->updatePanel = [] { ++updates; };
        updates = 0;
        row.act(session);
        CHECK(updates > 0);
    }
}

TEST_CASE("the licence may refuse what buttons and icon apply") {
    Drawing session(
        /*selected*/ true,
        {LicenceState::Licensed, {GuardedAction::ApplyToSelection, GuardedAction::ApplyToLayer}});
    const std::string before = session.text();
    for (const DialogItem button : {DialogItem::ApplyToSelection, DialogItem::ApplyToLayer}) {
        session.click(session.onButton(button));
        CHECK(session.text() == before);
        CHECK(session.axes().provisional);
    }
    session.host.editToolOptions(); // a double click on the tool's icon
    CHECK(session.text() == before);
    CHECK(session.axes().provisional);
}
