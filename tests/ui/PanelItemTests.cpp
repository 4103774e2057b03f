#include "tests/ui/PanelInHand.h"

using namespace facetta;
using namespace facetta::tests;
using namespace facetta::panel_item;

// What a user sees of the panel is told by the stories; here is what they cannot bring about.

namespace {

int copiesIn(const Drawing& session) { return countPaths(session.document(), /*lockedOnes*/ true); }

} // namespace

TEST_CASE("the origin is shown on the rulers, in their unit, as they run") {
    struct Row {
        std::string what;
        ai::int16 units;
        const char* x;
        const char* y;
    };
    const Row rows[] = {
        {"points", 0, "200.000 pt", "200.000 pt"},
        {"inches, one decimal more", 1, "2.7778 in", "2.7778 in"},
        {"centimetres, the same", 2, "7.0556 cm", "7.0556 cm"},
        {"points", 3, "200.000 pt", "200.000 pt"},
        {"picas", 4, "16p8.000", "16p8.000"},
        {"millimetres", 5, "70.556 mm", "70.556 mm"},
        {"pixels", 6, "200.000 px", "200.000 px"},
        {"Q", 7, "282.222 Q", "282.222 Q"},
    };
    PanelInHand session;
    for (const Row& row : rows) {
        INFO(row.what);
        session.document().rulerUnits = row.units;
        session.notify("AI Document Ruler Unit Changed Notifier");
        CHECK(session.textOf(kOriginX) == row.x);
        CHECK(session.textOf(kOriginY) == row.y);
    }
    thePlugin->hostPreferences.isRulerIn4thQuad = false; // y upwards
    session.notify("AI Document Ruler Origin Changed Notifier");
    CHECK(session.textOf(kOriginY) == "-282.222 Q");
    session.type(kOriginY, "-72pt");
    CHECK(near(session.origin(), {200, -72}));
}

TEST_CASE("what is typed stays while the panel is brought up to date around it") {
    PanelInHand session;
    PanelInHand::item(kOriginX).typed("12");
    session.notify("AI Document Changed Notifier");
    CHECK(session.textOf(kOriginX) == "12");
}

TEST_CASE("what the user gives counts, even when the document has just changed without a word") {
    struct Row {
        std::string what;
        void (*give)();
        bool (*counts)();
    };
    const Row rows[] = {
        {"box", [] { PanelInHand::item(kOverlay).clicked(); },
         [] { return thePlugin->preferences.useOverlay; }},
        {"number",
         [] {
             PanelInHand::item(kCount).typed("7");
             PanelInHand::item(kCount).commit();
         },
         [] { return thePlugin->tool.axes.axisCount == 7; }},
        {"mode", [] { PanelInHand::item(kSelectionMode).clicked(); },
         [] { return thePlugin->preferences.applyToSelection; }},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        ToolInHand session;
        session.dragFrom({400, -300}, {500, -260});
        session.host.editToolOptions(); // the axes go on the layer, and there is no art to tell of
        row.give();
        CHECK(row.counts());
        CHECK(PanelInHand::isEnabled(kCancel));
    }
}

TEST_CASE("without axes on the layer Active is for the next ones, and there is nothing to update") {
    PanelInHand session;
    session.click(kActive);
    CHECK_FALSE(session.preferences().autoMirror);
    CHECK_FALSE(session.isEnabled(kUpdate)); // changed here, a layer's axes are asked for,
    session.click(kLayerMode);
    session.click(kSelectionMode);
    session.click(kLayerMode);
    CHECK(session.isEnabled(kUpdate)); // where the mode is chosen they are not
    session.applyToLayer();
    CHECK_FALSE(session.stored().autoMirror);
}

TEST_CASE("art drawn during an edit is mirrored when the panel cancels the edit") {
    PanelInHand session;
    session.applyToLayer();
    session.type(kAngle, "10");
    session.host.edit("Draw", [](easel::Document& page) {
        drawLine(page, {310, -150}, {330, -140}, /*selected*/ false);
    });
    CHECK(copiesIn(session) == 0);
    session.click(kCancel);
    CHECK(copiesIn(session) == 10);
}

TEST_CASE("numbers given after a drag take the guides along") {
    PanelInHand session;
    session.applyToLayer(/*withGuides*/ true);
    session.dragFrom(session.onRay(1, 200), session.onRay(1.25, 200));
    session.type(kAngle, "30");
    CHECK(session.guideAngles() == std::vector{30, 90, 150});
}

TEST_CASE("a layer that is locked keeps its axes as they are") {
    PanelInHand session;
    session.applyToLayer();
    session.lockLayer();
    const std::string before = session.text();
    for (const int id : {kApply, kCancel, kUpdate, kActive})
        session.click(id);
    session.type(kOriginX, "250");
    session.type(kCount, "5");
    CHECK(session.text() == before);
    CHECK(session.textOf(kOriginX) == "200.000 pt");
    CHECK(session.textOf(kCount) == "3");
}

TEST_CASE("while the licence refuses it the panel shows the status line and does nothing") {
    PanelInHand session;
    session.applyToLayer();
    const std::string before = session.text();
    const Preferences settings = session.preferences();
    session.licence.refuse({GuardedAction::UsePanel});
    session.licence.status = "Expired on Friday";
    session.notify(kLicenceChangedNotifier);
    for (const auto& item : PanelInHand::panel().items()) {
        INFO("item ", item->id());
        CHECK(item->view().visible == (item->id() == kStatusLine));
    }
    CHECK(session.textOf(kStatusLine) == "Expired on Friday");
    for (const int id : {kApply, kCancel, kUpdate, kSelectionMode})
        session.click(id);
    session.type(kCount, "7");
    session.slide(20);
    for (int position = 0; position < 14; ++position)
        session.choose(position);
    CHECK(session.text() == before);
    CHECK(session.preferences().count == settings.count);
    CHECK(session.preferences().opacity == settings.opacity);
    CHECK(session.preferences().panelExpansion == settings.panelExpansion);

    // A compact panel has room for it, too.
    const auto& place = PanelInHand::item(kStatusLine).view().bounds;
    session.host.cyclePanel(session.hostPanel());
    CHECK(place.bottom <= PanelInHand::panel().view().size.height);
    session.host.cyclePanel(session.hostPanel());

    session.licence.refuse({});
    session.notify(kLicenceChangedNotifier);
    CHECK(session.isVisible(kApply));
    CHECK_FALSE(session.isVisible(kStatusLine));
    session.type(kCount, "7");
    CHECK(session.preferences().count == 7);
}

TEST_CASE("a panel that is made where it may not be used shows the status line from the start") {
    Session session({LicenceState::Licensed, {GuardedAction::UsePanel}});
    session.host.start();
    CHECK(PanelInHand::isVisible(kStatusLine));
    CHECK_FALSE(PanelInHand::isVisible(kApply));
}
