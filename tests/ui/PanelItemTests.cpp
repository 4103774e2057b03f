#include "tests/ui/PanelInHand.h"

#include <numbers>

using namespace facetta;
using namespace facetta::tests;
using namespace facetta::panel_item;

namespace {

/// A session that has just started with these settings, and no document.
struct Started : Session {
    explicit Started(
        std::initializer_list<std::pair<const char*, easel::Preferences::Value>> stored,
        TestLicence terms = {})
        : Session(std::move(terms)) {
        for (const auto& [key, value] : stored)
            host.preferences.put("Facetta", key, value);
        host.start();
    }
};

} // namespace

TEST_CASE("the panel begins with what the settings say") {
    struct Row {
        std::string what;
        std::pair<const char*, easel::Preferences::Value> setting;
        int id;
        bool on;
        bool enabled;
        const char* text;
    };
    const std::pair<const char*, easel::Preferences::Value> none{"FTNone", false};
    const std::pair<const char*, easel::Preferences::Value> toSelection{"FTApplySel", true};
    const std::pair<const char*, easel::Preferences::Value> byHand{"FTAutoMirror", false};
    const std::pair<const char*, easel::Preferences::Value> overlay{"FTUseOverlay", true};
    const Row rows[] = {
        {"layer mode", none, kLayerMode, true, true, ""},
        {"layer mode", none, kSelectionMode, false, true, ""},
        {"layer mode", none, kActive, true, true, "Active"},
        {"nothing to update by hand", none, kUpdate, false, false, "Update"},
        {"nothing to apply yet", none, kApply, false, false, "Apply to Layer"},
        {"nothing to cancel yet", none, kCancel, false, false, "Cancel"},
        {"selection mode", toSelection, kSelectionMode, true, true, ""},
        {"selection mode", toSelection, kActive, true, false, "Active"},
        {"selection mode", toSelection, kUpdate, false, false, "Update"},
        {"selection mode", toSelection, kApply, false, false, "Apply to Selection"},
        {"mirrored by hand", byHand, kActive, false, true, "Active"},
        {"mirrored by hand", byHand, kUpdate, false, true, "Update"},
        {"no overlay", none, kOverlay, false, true, ""},
        {"no overlay", none, kOpacity, true, false, "85%"},
        {"no overlay", none, kOpacityScale, false, false, ""},
        {"overlay", overlay, kOverlay, true, true, ""},
        {"overlay", overlay, kOpacitySlider, true, true, ""},
        {"new axes", none, kAngle, false, true, "0.000\u00b0"},
        {"new axes", none, kCount, true, true, "3"},
        {"an angle", {"FTAngle", std::numbers::pi / 6}, kAngle, true, true, "30.000\u00b0"},
        {"a count", {"FTCount", ai::int32{72}}, kCount, true, true, "72"},
        {"no axes", none, kOriginX, false, true, "0.000 pt"},
    };
    for (const Row& row : rows) {
        INFO(row.what, ", item ", row.id);
        const Started session({row.setting});
        const NRDM::CoADMItem& item = PanelInHand::item(row.id);
        CHECK(item.view().enabled == row.enabled);
        CHECK(item.isOn() == row.on);
        CHECK(item.text() == row.text);
    }
}

TEST_CASE("the panel is as high as it was left, and says so to the host") {
    struct Row {
        ai::int32 stored;
        int height;
        ai::int16 hostState;
        const char* entry;
        ai::int32 toggled;
    };
    const Row rows[] = {
        {0, 188, 2, "Compact Panel", 1},
        {1, 83, 1, "Expand Panel", 0},
        {2, 188, 1, "Compact Panel", 1}, // of no version that is known
    };
    for (const Row& row : rows) {
        INFO("stored ", row.stored);
        Started session({{"FTPanelExpansion", row.stored}});
        const AIPanelRef frame = session.host.panels.named(U"Facetta");
        const auto& size = PanelInHand::panel().view().size;
        CHECK(size.width == 240);
        CHECK(size.height == row.height);
        CHECK(session.host.panels.at(frame).state == row.hostState);
        CHECK(session.host.panels.at(frame).shown == 0); // the user or a workspace shows it
        const easel::FlyoutMenu& menu = session.host.openFlyout(frame);
        CHECK(toText(menu.items.front().text) == row.entry);
        session.host.chooseFlyoutItem(frame, 1);
        CHECK(thePlugin->preferences.panelExpansion == row.toggled);
        CHECK(size.height == (row.toggled == 1 ? 83 : 188));
        CHECK(session.host.panels.at(frame).state == (row.toggled == 1 ? 1 : 2));
    }
}

TEST_CASE("the arrow in the panel's tab compacts and expands it") {
    Started session({});
    const AIPanelRef frame = session.host.panels.named(U"Facetta");
    const auto& statusLine = PanelInHand::item(kStatusLine).view().bounds;
    CHECK(statusLine.top == 69);
    session.host.cyclePanel(frame); // from 2 round to 1
    CHECK(thePlugin->preferences.panelExpansion == 1);
    CHECK(PanelInHand::panel().view().size.height == 83);
    CHECK(session.host.panels.at(frame).size.height == 83);
    CHECK(statusLine.top == 17);
    CHECK(statusLine.bottom == 67);
    session.host.cyclePanel(frame);
    CHECK(thePlugin->preferences.panelExpansion == 0);
    CHECK(PanelInHand::panel().view().size.height == 188);
    CHECK(statusLine.top == 69);
}

TEST_CASE("fields refuse what is out of their limits") {
    struct Row {
        std::string what;
        int id;
        std::string typed;
        std::string shown;
    };
    const Row rows[] = {
        {"no axes", kCount, "0", "3"},
        {"too many", kCount, "73", "3"},
        {"as many as can be", kCount, "72", "72"},
        {"more than a turn", kAngle, "400", "0.000\u00b0"},
        {"backwards", kAngle, "-90", "270.000\u00b0"},
        {"a whole turn", kAngle, "360", "0.000\u00b0"},
        {"arithmetic", kAngle, "90/4", "22.500\u00b0"},
        {"too opaque", kOpacity, "101", "85%"},
        {"less than nothing", kOpacity, "-1", "85%"},
        {"no sign needed", kOpacity, "55", "55%"},
        {"another unit", kOriginX, "1in", "72.000 pt"},
        {"off the canvas", kOriginX, "20000", "200.000 pt"},
        {"off the canvas", kOriginY, "-20000", "200.000 pt"},
    };
    for (const Row& row : rows) {
        INFO(row.what, ": ", row.typed);
        PanelInHand session;
        session.click(kOverlay);
        session.type(row.id, row.typed);
        CHECK(session.textOf(row.id) == row.shown);
    }
}

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

TEST_CASE("while the licence refuses it the panel shows the status line and does nothing") {
    PanelInHand session;
    session.applyToLayer();
    const std::string before = session.text();
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
    CHECK(session.preferences().count == 3);
    CHECK(session.preferences().opacity == 0.85);
    CHECK(session.preferences().panelExpansion == 0);
    session.licence.refuse({});
    session.notify(kLicenceChangedNotifier);
    CHECK(session.isVisible(kApply));
    CHECK_FALSE(session.isVisible(kStatusLine));
    session.type(kCount, "7");
    CHECK(session.preferences().count == 7);
}

TEST_CASE("a panel that is made where it may not be used shows the status line from the start") {
    const Started session({}, {LicenceState::Licensed, {GuardedAction::UsePanel}});
    CHECK(PanelInHand::isVisible(kStatusLine));
    CHECK_FALSE(PanelInHand::isVisible(kApply));
}
