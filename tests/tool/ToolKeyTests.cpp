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

TEST_CASE("Escape puts everything back as it was at the press, until the release") {
    ToolInHand session;
    thePlugin->preferences.angle = 0.25;
    session.press(200, -200);
    session.drag(200, -100);
    REQUIRE(near(session.axes().angle, kPi / 2));
    {
        const KeysHeld held({Key::Escape});
        session.drag(210, -100);
    }
    CHECK(session.axes().angle == 0.25);
    CHECK(thePlugin->preferences.angle == 0.25);
    session.drag(100, -100); // no more
    CHECK(session.axes().angle == 0.25);
    session.release(100, -100);
    CHECK_FALSE(session.axes().provisional);
    CHECK(near(session.origin(), {100, -100})); // new axes follow the cursor again
    session.press(100, -100);
    session.release(100, -100);
    CHECK(session.axes().provisional); // and can be made
}

TEST_CASE("Shift holds a new axis to steps of 45 degrees from the host's constrain angle") {
    ToolInHand session;
    thePlugin->hostPreferences.constrainAngle = 10.0;
    const KeysHeld held({Key::Shift});
    session.press(200, -200);
    session.drag(290, -125); // 39.8 degrees
    session.release(290, -125);
    CHECK(near(session.axes().angle, 55.0 * kPi / 180));
    CHECK(near(session.origin(), {200, -200}));
}

TEST_CASE("Shift holds the origin to the same directions from where it was") {
    ToolInHand session;
    session.press(200, -200);
    session.release(200, -200);
    session.press(200, -200);
    REQUIRE(thePlugin->tool.zone == ToolZone::Origin);
    const KeysHeld held({Key::Shift});
    session.drag(260, -210);
    session.drag(300, -220);
    session.release(300, -220);
    CHECK(near(session.origin(), {300, -200}));
}
