#include "tests/tool/Drawing.h"

using namespace facetta;
using namespace facetta::tests;

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
