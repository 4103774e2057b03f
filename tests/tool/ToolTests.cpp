#include "tests/tool/ToolInHand.h"

using namespace facetta;
using namespace facetta::tests;

TEST_CASE("press, drag and release make axes; the drag turns them") {
    struct Row {
        AIRealPoint to;
        double degrees;
    };
    const Row rows[] = {
        {{300, -200}, 0}, {{200, -100}, 90}, {{100, -300}, 225}, {{300, -300}, 315}};
    for (const auto& row : rows) {
        INFO(row.degrees);
        ToolInHand session;
        session.press(200, -200);
        session.drag(200, -200); // no movement: no drag yet
        CHECK(session.axes().angle == 0.0);
        session.drag(210, -190);
        session.drag(row.to.h, row.to.v);
        session.release(row.to.h, row.to.v);
        CHECK(session.axes().provisional);
        CHECK_FALSE(session.axes().onLayer);
        CHECK(near(session.origin(), {200, -200}));
        CHECK(near(session.axes().angle, row.degrees * kPi / 180));
        CHECK(thePlugin->preferences.angle == session.axes().angle);
        CHECK(thePlugin->tool.zone == ToolZone::Axis);
    }
}

TEST_CASE("the host snaps with the stated sources at every step") {
    ToolInHand session;
    session.host.track({.at = {10, -10}});
    session.host.cursorSnap.calls.clear();
    session.host.track({.at = {10, -10}});
    session.press(10, -10);
    session.drag(50, -10);
    session.release(50, -10);
    std::vector<std::string> controls;
    for (const easel::SnapCall& call : session.host.cursorSnap.calls)
        controls.push_back(call.control);
    CHECK(controls == std::vector<std::string>{"ATFGPLM v i o", "ATFGPLM v i o", "ATFGPLM v i o f",
                                               "AP v i o"});
    CHECK(session.host.cursorSnap.calls.back().point.h == 50000);
}

TEST_CASE("the diameter keys change the count within 1 to 72") {
    ToolInHand session;
    session.host.track({.at = {10, -10}});
    for (int i = 0; i < 5; ++i)
        session.host.decreaseDiameter();
    CHECK(session.axes().axisCount == 1);
    for (int i = 0; i < 100; ++i)
        session.host.increaseDiameter();
    CHECK(session.axes().axisCount == 72);
    CHECK(thePlugin->preferences.count == 72);
}

TEST_CASE("a press takes the tool in hand where the host has not told of it") {
    ToolInHand session;
    session.host.selectTool(nullptr);
    AIToolMessage message{};
    message.tool = thePlugin->toolHandle;
    message.cursor = {200, -200};
    CHECK(session.send("AI Tool", "AI Mouse Down", message) == kNoErr);
    CHECK(session.send("AI Tool", "AI Mouse Up", message) == kNoErr);
    CHECK(thePlugin->tool.toolSelected);
    CHECK(session.axes().provisional);
}

TEST_CASE("messages to another tool are none of ours") {
    ToolInHand session;
    session.host.track({.at = {10, -10}});
    AIToolMessage message{};
    message.cursor = {500, -500};
    CHECK(session.send("AI Tool", "AI Track Cursor", message) == kNoErr);
    CHECK(near(session.origin(), {10, -10}));
}

TEST_CASE("a refused press changes nothing; a refused release leaves no axes behind") {
    {
        ToolInHand session({LicenceState::Licensed, {GuardedAction::ToolMouseDown}});
        session.host.track({.at = {10, -10}});
        session.host.press({.at = {100, -100}});
        CHECK(near(session.origin(), {10, -10}));
        session.release(100, -100);
    }
    {
        ToolInHand session({LicenceState::Licensed, {GuardedAction::ToolMouseUp}});
        session.press(100, -100);
        session.release(100, -100);
        CHECK_FALSE(session.axes().provisional);
    }
    {
        ToolInHand session;
        session.dragFrom({100, -100}, {200, -100});
        session.licence.refuse({GuardedAction::ToolMouseDown, GuardedAction::ToolMouseUp});
        session.host.increaseDiameter();
        const SymmetryAxes pending = session.axes();
        session.dragFrom({150, -100}, {150, -150});
        CHECK(session.axes() == pending);
    }
}
