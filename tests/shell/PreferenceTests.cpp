#include "tests/shell/Session.h"

#include "symmetry/geometry/Geometry.h"
#include "ui/DisplayUnits.h"

#include <limits>

using namespace facetta;
using namespace facetta::tests;

TEST_CASE("stored values out of range are clamped on reading") {
    struct Row {
        double angle;
        double loadedAngle;
        ai::int32 count;
        ai::int32 loadedCount;
        double opacity;
        double loadedOpacity;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const Row rows[] = {
        {1.5, 1.5, 7, 7, 0.4, 0.4},   {-0.1, 0, 0, 1, -1, 0},   {kTwoPi, 0, 100, 72, 150, 100},
        {7.0, 0, -5, 1, 100, 100},    {nan, 0, 72, 72, nan, 0}, {inf, 0, 73, 72, inf, 100},
        {6.283, 6.283, 1, 1, 85, 85},
    };
    for (const Row& row : rows) {
        INFO("angle ", row.angle, ", count ", row.count, ", opacity ", row.opacity);
        Session session;
        session.host.preferences.put("Facetta", "FTAngle", row.angle);
        session.host.preferences.put("Facetta", "FTCount", row.count);
        session.host.preferences.put("Facetta", "FTOpacity", row.opacity);
        session.host.start();
        CHECK(thePlugin->preferences.angle == row.loadedAngle);
        CHECK(thePlugin->preferences.count == row.loadedCount);
        CHECK(thePlugin->preferences.opacity == row.loadedOpacity);
    }
}

TEST_CASE("every setting of one run is that of the next, under its key and with its type") {
    using Value = easel::Preferences::Value;
    const std::pair<const char*, Value> settings[] = {
        // none of them is the default
        {"FTAngle", 1.25},
        {"FTCount", ai::int32{7}},
        {"FTDlgPosX", ai::int32{40}},
        {"FTDlgPosY", ai::int32{60}},
        {"FTUseAnnoDlg", false},
        {"FTInitDragPO", true},
        {"FTRemovePoints", false},
        {"FTApplySel", true},
        {"FTAutoMirror", false},
        {"FTUseOverlay", true},
        {"FTOpacity", 0.5},
        {"FTSnapPerp", false},
        {"FTPanelExpansion", ai::int32{1}},
    };
    Session session;
    for (const auto& [key, value] : settings)
        session.host.preferences.put("Facetta", key, value);
    session.host.start();
    CHECK(thePlugin->tool.dialog == DialogPosition{40, 60});
    for (const auto& [key, value] : settings)
        session.host.preferences.remove("Facetta", key);
    session.host.quit();
    for (const auto& [key, value] : settings) {
        INFO(key);
        const Value* const stored = session.host.preferences.find("Facetta", key);
        REQUIRE(stored != nullptr);
        CHECK(*stored == value);
    }
}

TEST_CASE("the constrain angle follows the host") {
    Session session;
    session.host.preferences.put("", "constrain/angle", 30.0);
    session.host.start();
    CHECK(thePlugin->hostPreferences.constrainAngle == 30.0);
    session.host.preferences.put("", "constrain/angle", 45.0);
    session.host.notify("AI Preference Changed Notifier");
    CHECK(thePlugin->hostPreferences.constrainAngle == 45.0);
    session.host.preferences.remove("", "constrain/angle");
    session.host.notify("AI Preference Changed Notifier");
    CHECK(thePlugin->hostPreferences.constrainAngle == 0.0);
}

TEST_CASE("lengths are shown in the host's units while no document has its own") {
    Session session;
    session.host.start();
    const ai::int32 byRulerType[] = {2, 3, 1, 5, 4, 8, 10, 1};
    for (ai::int32 type = 0; type < 8; ++type) {
        INFO("rulerType ", type);
        session.host.preferences.put("", "rulerType", type);
        CHECK(static_cast<ai::int32>(displayUnit()) == byRulerType[type]);
    }
}

TEST_CASE("the dialog is placed when the first document opens and clamped later") {
    Session session;
    session.host.start();
    easel::Document& document = session.openDocument();
    const easel::DocumentView& window = session.host.view(nullptr);
    const DialogPosition centre{window.width / 2 - 96, window.height / 2 - 50};
    CHECK(thePlugin->tool.dialog == centre);
    CHECK(thePlugin->view.handle == session.host.currentView());

    thePlugin->tool.dialog = {5000, -3};
    session.host.notify("AI Document View Changed Notifier");
    CHECK(thePlugin->tool.dialog == DialogPosition{window.width - 192, 16});

    session.host.close(document);
    CHECK(thePlugin->view.handle == nullptr);
}
