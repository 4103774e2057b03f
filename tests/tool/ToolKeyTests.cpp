#include "tests/tool/KeysHeld.h"
#include "tests/tool/ToolInHand.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

TEST_CASE("U suppresses the host's smart guides only where they would snap what is dragged") {
    struct Row {
        std::string what;
        bool enabled;   ///< by the user
        double grabbed; ///< sectors
        HintId hint;
    };
    const Row rows[] = {{"an axis", true, 1, HintId::SmartGuidesDisabled},
                        {"a press in a sector drags nothing", true, 1.3, HintId::None},
                        {"the user has no smart guides", false, 1, HintId::None}};
    for (const Row& row : rows) {
        INFO(row.what);
        ToolInHand session;
        session.click({200, -200});
        session.host.cursorSnap.enabled = row.enabled;
        const AIRealPoint at = session.onRay(row.grabbed, 200);
        session.press(at.h, at.v);
        session.tool().hint = {};
        {
            const KeysHeld held({Key::U});
            session.drag(at.h + 10, at.v);
        }
        CHECK(session.tool().hint.id == row.hint);
        auto& calls = session.host.cursorSnap.calls;
        calls.clear();
        session.drag(at.h + 20, at.v);
        CHECK(calls.empty() == row.enabled); // suppressed, or there is nothing to snap
        session.release(at.h + 20, at.v);
    }
}

TEST_CASE("A makes the grabbed line's direction the host's constrain angle") {
    const struct {
        double angle; ///< degrees, of the first of three axes
        double grabbed;
        double degrees;
    } rows[] = {{0, 0, 0}, {20, 1, 80}, {20, 4, 260}, {350, 1, 50}, {20, 0.5, 50}};
    for (const auto& row : rows) {
        INFO(row.angle, " and ", row.grabbed);
        ToolInHand session;
        thePlugin->preferences.angle = row.angle * kPi / 180;
        session.click({300, -300});
        const AIRealPoint at = session.onRay(row.grabbed, 200);
        session.press(at.h, at.v);
        {
            const KeysHeld held({Key::A});
            session.drag(at.h, at.v);
        }
        session.release(at.h, at.v);
        const auto stored = [&](const char* name) {
            return session.host.preferences.number("", name).value_or(NAN);
        };
        CHECK(near(stored("constrain/angle"), row.degrees));
        CHECK(near(stored("constrain/cos"), std::cos(row.degrees * kPi / 180)));
        CHECK(near(stored("constrain/sin"), std::sin(row.degrees * kPi / 180)));
        CHECK(near(thePlugin->hostPreferences.constrainAngle, row.degrees));
        CHECK(session.tool().hint.id == HintId::SetConstrainAngle);
    }
}
