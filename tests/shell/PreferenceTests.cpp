#include "tests/shell/Session.h"

#include "symmetry/geometry/Geometry.h"
#include "ui/DisplayUnits.h"

#include <limits>

using namespace facetta;
using namespace facetta::tests;

namespace {

void start(Session& session) { session.host.start(); }

} // namespace

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
        start(session);
        CHECK(thePlugin->preferences.angle == row.loadedAngle);
        CHECK(thePlugin->preferences.count == row.loadedCount);
        CHECK(thePlugin->preferences.opacity == row.loadedOpacity);
    }
}

TEST_CASE("an empty store leaves the defaults, and shut-down writes every key with its type") {
    Session session;
    start(session);
    session.host.quit();
    using Value = easel::Preferences::Value;
    struct Entry {
        const char* key;
        Value value;
    };
    const Entry expected[] = {
        {"FTAngle", 0.0},
        {"FTCount", ai::int32{3}},
        {"FTDlgPosX", ai::int32{-999}},
        {"FTDlgPosY", ai::int32{-999}},
        {"FTUseAnnoDlg", true},
        {"FTInitDragPO", false},
        {"FTRemovePoints", true},
        {"FTApplySel", false},
        {"FTAutoMirror", true},
        {"FTUseOverlay", false},
        {"FTOpacity", 0.85},
        {"FTSnapPerp", true},
        {"FTPanelExpansion", ai::int32{0}},
    };
    for (const Entry& entry : expected) {
        INFO(entry.key);
        const Value* const stored = session.host.preferences.find("Facetta", entry.key);
        REQUIRE(stored != nullptr);
        CHECK(stored->index() == entry.value.index());
        CHECK(session.host.preferences.number("Facetta", entry.key) ==
              std::visit(
                  [](const auto& v) -> std::optional<double> {
                      if constexpr (std::is_arithmetic_v<std::decay_t<decltype(v)>>)
                          return static_cast<double>(v);
                      return std::nullopt;
                  },
                  entry.value));
    }
}

TEST_CASE("what one run changes the next one reads") {
    Session session;
    start(session);
    thePlugin->preferences.angle = 1.25;
    thePlugin->preferences.useOverlay = true;
    thePlugin->tool.dialog = {40, 60};
    session.host.quit();
    start(session);
    CHECK(thePlugin->preferences.angle == 1.25);
    CHECK(thePlugin->preferences.useOverlay);
    CHECK(thePlugin->tool.dialog == DialogPosition{40, 60});
}

TEST_CASE("the constrain angle follows the host") {
    Session session;
    session.host.preferences.put("", "constrain/angle", 30.0);
    start(session);
    CHECK(thePlugin->hostPreferences.constrainAngle == 30.0);
    session.host.preferences.put("", "constrain/angle", 45.0);
    session.host.notify("AI Preference Changed Notifier");
    CHECK(thePlugin->hostPreferences.constrainAngle == 45.0);
    session.host.preferences.remove("", "constrain/angle");
    session.host.notify("AI Preference Changed Notifier");
    CHECK(thePlugin->hostPreferences.constrainAngle == 0.0);
}

TEST_CASE("lengths are shown in the document's ruler units, else in the host's") {
    Session session;
    start(session);
    const ai::int32 byRulerType[] = {2, 3, 1, 5, 4, 8, 10, 1};
    for (ai::int32 type = 0; type < 8; ++type) {
        INFO("rulerType ", type);
        session.host.preferences.put("", "rulerType", type);
        CHECK(static_cast<ai::int32>(displayUnit()) == byRulerType[type]);
    }
    easel::Document& document = session.openDocument();
    const ai::int32 byRulerUnits[] = {1, 2, 4, 1, 5, 3, 10, 8, 1};
    for (ai::int16 units = 0; units < 9; ++units) {
        INFO("ruler units ", units);
        document.rulerUnits = units;
        CHECK(static_cast<ai::int32>(displayUnit()) == byRulerUnits[units]);
    }
}

TEST_CASE("the dialog is placed when the first document opens and clamped later") {
    Session session;
    start(session);
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
