#include "tests/tool/Annotated.h"
#include "tests/tool/KeysHeld.h"
#include "tests/ui/DialogUser.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

struct Box {
    int id;
    bool Preferences::*setting;
    const char* tipBegins;
};

constexpr Box kBoxes[] = {
    {3, &Preferences::initialDragMovesOrigin, "When creating new axes, the initial drag"},
    {4, &Preferences::snapPerpendicular, "Snaps the dragged axis to positions along a path"},
    {5, &Preferences::useAnnotationDialog, "Shows an on-screen dialog"},
    {6, &Preferences::removePoints, "When mirroring a selection or removing layer axes"},
};

void openByTool(ToolInHand& session) {
    const KeysHeld held({Key::Shift});
    session.host.editToolOptions();
}

std::vector<bool> settings() {
    std::vector<bool> values;
    for (const Box& box : kBoxes)
        values.push_back(thePlugin->preferences.*box.setting);
    return values;
}

} // namespace

TEST_CASE("each box shows its setting and OK stores it; Cancel changes nothing") {
    for (const Box& box : kBoxes) {
        for (const bool ok : {true, false}) {
            INFO(box.id, ok);
            ToolInHand session;
            const std::vector<bool> before = settings();
            DialogUser user([&](DialogUser& hands) {
                CHECK(hands.title() == "Facetta Preferences");
                CHECK(hands.item(box.id).tip.starts_with(box.tipBegins));
                CHECK(hands.item(box.id).on == thePlugin->preferences.*box.setting);
                hands.click(box.id);
                CHECK(settings() == before); // not yet
                ok ? hands.ok() : hands.cancel();
            });
            openByTool(session);
            CHECK(user.met == 1);
            std::vector<bool> expected = before;
            if (ok) expected[static_cast<std::size_t>(box.id - 3)].flip();
            CHECK(settings() == expected);
        }
    }
}

TEST_CASE("the on-canvas dialog goes and comes with its setting, at once") {
    Drawing session(/*selected*/ false);
    for (const bool shown : {false, true}) {
        DialogUser user([](DialogUser& hands) {
            hands.click(5);
            hands.press(door::Key::Enter);
        });
        static_cast<void>(drawn(session));
        CHECK_FALSE(session.host.needsRedraw());
        openByTool(session);
        CHECK(session.host.needsRedraw());
        CHECK(textsIn(drawn(session)).empty() == !shown);
    }
}

TEST_CASE("the tool's icon opens the preferences where there is nothing to apply") {
    ToolInHand session;
    DialogUser user;
    session.host.editToolOptions();
    CHECK(user.met == 1);
}
