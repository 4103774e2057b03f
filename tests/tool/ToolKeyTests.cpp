#include "tests/tool/KeysHeld.h"
#include "tests/tool/ToolInHand.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

constexpr Key digit(int number) { return static_cast<Key>('0' + number); }

} // namespace

TEST_CASE("keys held in a drag set the number of axes; of several digits the lowest wins") {
    struct Row {
        const char* what;
        std::initializer_list<Key> keys;
        ai::int32 before;
        ai::int32 after;
    };
    const Row rows[] = {
        {"none", {}, 3, 3},
        {"7", {digit(7)}, 3, 7},
        {"9, 4 and 6", {digit(9), digit(4), digit(6)}, 3, 4},
        {"]", {Key::RightBracket}, 3, 4},
        {"] at the most", {Key::RightBracket}, 72, 72},
        {"[", {Key::LeftBracket}, 3, 2},
        {"[ at the fewest", {Key::LeftBracket}, 1, 1},
        {"a digit before a bracket", {digit(2), Key::RightBracket}, 3, 2},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        ToolInHand session;
        thePlugin->preferences.count = row.before;
        session.press(200, -200);
        {
            const KeysHeld held(row.keys);
            session.drag(300, -200);
        }
        session.release(300, -200);
        CHECK(session.axes().axisCount == row.after);
        CHECK(thePlugin->preferences.count == row.after);
    }
}

TEST_CASE("a count key before the mouse moves changes the count alone") {
    ToolInHand session;
    session.click({200, -200});
    session.press(300, -206); // a line, from beside it
    {
        const KeysHeld held({digit(4)});
        session.drag(300, -206);
    }
    CHECK(session.axes().axisCount == 4);
    CHECK(session.axes().angle == 0.0);
    session.release(300, -206);
}

TEST_CASE("U suppresses the host's smart guides once a press, for one drag, where it counts") {
    ToolInHand session;
    session.host.cursorSnap.enabled = true;
    auto& calls = session.host.cursorSnap.calls;
    const auto dragWith = [&](std::initializer_list<Key> keys, AIReal x) {
        const KeysHeld held(keys);
        session.drag(x, -180);
    };
    session.press(200, -200);
    dragWith({Key::U}, 250);
    CHECK(calls.back().control.empty());
    CHECK(widen(calls.back().point) == Point{16384, 16384});
    CHECK(session.tool().hint.id == HintId::SmartGuidesDisabled);
    const std::size_t before = calls.size();
    dragWith({Key::U}, 260); // still held
    dragWith({}, 270);
    CHECK(calls.size() == before); // not asked meanwhile
    dragWith({Key::U}, 280);
    CHECK(session.tool().hint.id == HintId::SmartGuidesEnabled);
    CHECK(calls.back().control == "ATFGPLM v i o f");
    dragWith({}, 290);
    dragWith({Key::U}, 300);
    session.release(300, -180);
    session.press(250, -300); // a sector: there is nothing to suppress
    calls.clear();
    dragWith({Key::U}, 260);
    CHECK(calls.empty());
    session.release(260, -180);
    session.press(200, -200);
    dragWith({}, 250);
    CHECK(calls.back().control == "ATFGPLM v i o f"); // the next drag has them again
    session.release(250, -180);

    session.host.cursorSnap.enabled = false; // the user has none
    session.tool().hint = {};
    session.press(250, -180);
    dragWith({Key::U}, 260);
    CHECK(session.tool().hint.id == HintId::None);
    session.release(260, -180);
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
