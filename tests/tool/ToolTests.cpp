#include "tests/tool/ToolInHand.h"

using namespace facetta;
using namespace facetta::tests;

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
