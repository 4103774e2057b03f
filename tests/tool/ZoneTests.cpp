#include "tests/tool/Drawing.h"
#include "tests/tool/KeysHeld.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

TEST_CASE("cursor and Alt hint by what is under the cursor") {
    struct Row {
        const char* where;
        double sectors;
        double radius;
        ToolZone zone;
        ai::int32 cursor;
        HintId pending; ///< with Alt, for pending axes
        HintId onLayer;
    };
    const Row rows[] = {
        {"a sector", 1.3, 200, ToolZone::Sector, 16021, HintId::SpecifySector,
         HintId::SpecifySector},
        {"an axis", 2, 200, ToolZone::Axis, 16022, HintId::None, HintId::RepositionLayerAxes},
        {"the handle", 0.5, 200, ToolZone::Axis, 16022, HintId::None, HintId::RepositionLayerAxes},
        {"the origin", 0, 0, ToolZone::Origin, 16022, HintId::None, HintId::RepositionLayerAxes},
    };
    for (const bool onLayer : {false, true}) {
        Drawing session(/*selected*/ false);
        if (onLayer) session.makeLive();
        for (const Row& row : rows) {
            INFO(row.where, onLayer ? " of a layer's axes" : " of pending axes");
            session.tool().hint = {};
            const AIRealPoint place = session.onRay(row.sectors, row.radius);
            {
                const KeysHeld held({Key::Alt});
                session.host.track({.at = place});
            }
            CHECK(session.tool().zone == row.zone);
            CHECK(session.host.user.cursor == row.cursor);
            CHECK(session.tool().sectorHandleHighlighted == (row.sectors == 0.5));
            const HintId expected = onLayer ? row.onLayer : row.pending;
            CHECK(session.tool().hint.id == expected);
            CHECK(session.tool().hint.shown == (expected != HintId::None));
            session.host.track({.at = place});
            CHECK_FALSE(session.tool().hint.shown);
        }
    }
}

TEST_CASE("the keys that set the number of axes tell what they did, at their limits nothing") {
    struct Row {
        Key key;
        ai::int32 before;
        ai::int32 after;
        HintId hint;
    };
    const Row rows[] = {{Key::Digit9, 3, 9, HintId::SpecifyAxes},
                        {Key::RightBracket, 71, 72, HintId::IncreaseAxes},
                        {Key::RightBracket, 72, 72, HintId::None},
                        {Key::LeftBracket, 2, 1, HintId::DecreaseAxes},
                        {Key::LeftBracket, 1, 1, HintId::None}};
    for (const auto& [key, before, after, hint] : rows) {
        ToolInHand session;
        thePlugin->preferences.count = before;
        session.press(200, -200);
        session.tool().hint = {};
        const KeysHeld held({key});
        session.drag(200, -200); // without moving
        CHECK(session.axes().axisCount == after);
        CHECK(session.tool().hint.id == hint);
        session.release(200, -200);
    }
}

TEST_CASE("a double click on the tool's icon applies what is pending, else it asks for settings") {
    static int opened = 0;
    struct Row {
        const char* what;
        bool pending;
        std::initializer_list<Key> keys;
        bool asks;
    };
    const Row rows[] = {{"pending axes", true, {}, false},
                        {"with Ctrl", true, {Key::Control}, true},
                        {"with Shift", true, {Key::Shift}, true},
                        {"axes that only follow the cursor", false, {}, true}};
    for (const auto& row : rows) {
        INFO(row.what);
        Drawing session(/*selected*/ false);
        if (!row.pending) session.click(session.onButton(DialogItem::Cancel));
        thePlugin->dialogs.preferences = [](ToolSession&) {
            ++opened;
            return DialogResult::Ok;
        };
        opened = 0;
        const KeysHeld held(row.keys);
        session.host.editToolOptions();
        CHECK(opened == (row.asks ? 1 : 0));
        CHECK(session.axes().onLayer == !row.asks);
    }
}

TEST_CASE("another number of axes is an edit of the layer's, even without moving") {
    Drawing session(/*selected*/ false);
    session.makeLive();
    const SymmetryAxes before = session.axes();
    const AIRealPoint axis = session.onRay(0, 200);
    session.press(axis.h, axis.v);
    {
        const KeysHeld held({Key::Digit9});
        session.drag(axis.h, axis.v);
    }
    session.release(axis.h, axis.v);
    CHECK(session.axes().axisCount == 9);
    CHECK(session.axes().provisional);
    CHECK(layerEditOf(session.tool())->layerBackup == before);
    session.click(session.onButton(DialogItem::Cancel));
    CHECK(session.axes() == before);
}
