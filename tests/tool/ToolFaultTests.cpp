#include "tests/tool/FaultSweep.h"
#include "tests/tool/KeysHeld.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

void nothing(Drawing&) {}

void dropAxesByTool(Drawing& session) {
    session.host.selectTool(nullptr);
    session.host.selectTool(thePlugin->toolHandle);
}

void makeAxes(Drawing& session) {
    session.press(500, -300);
    session.drag(520, -300);
    session.drag(560, -280);
    session.release(560, -280);
}

void chooseSelection(Drawing&) { thePlugin->preferences.applyToSelection = true; }

void editOptions(Drawing& session) { session.host.editToolOptions(); }

template <DialogItem Button> void press(Drawing& session) {
    session.click(session.onButton(Button));
}

void makeLive(Drawing& session) { session.makeLive(/*withGuides*/ true); }

/// Places are numbers here: to compute them from the axes asks the host.
void editLayer(Drawing& session) { session.dragFrom({300, -26.8F}, {200, 0}); }

void editLayerFurther(Drawing& session) { session.dragFrom({200, 0}, {100, -26.8F}); }

void takeAxesOffLayer(Drawing& session) {
    makeLive(session);
    editLayer(session);
}

void repositionLayer(Drawing& session) {
    const KeysHeld held({Key::Alt});
    editLayer(session);
}

void chooseSector(Drawing& session) {
    const KeysHeld held({Key::Alt});
    session.click({88, -100});
}

void escapeFromDrag(Drawing& session) {
    session.press(300, -26.8F);
    session.drag(330, -26.8F);
    {
        const KeysHeld held({Key::Escape});
        session.drag(331, -26.8F);
    }
    session.release(331, -26.8F);
}

void draw(Drawing& session) { static_cast<void>(session.host.drawAnnotations(nullptr)); }

void chooseToolAndHover(Drawing& session) {
    dropAxesByTool(session);
    for (const AIReal x : {200.0F, 260.0F, 320.0F})
        session.host.track({.at = {x, -200}});
}

constexpr FaultAction kActions[] = {
    {"drag new axes", dropAxesByTool, makeAxes},
    {"apply to the selection", chooseSelection, editOptions},
    {"apply to the layer", nothing, editOptions},
    {"press Apply to Selection", nothing, press<DialogItem::ApplyToSelection>},
    {"press Apply to Layer", nothing, press<DialogItem::ApplyToLayer>},
    {"press Cancel", nothing, press<DialogItem::Cancel>},
    {"edit a layer's axes", makeLive, editLayer},
    {"edit them further", takeAxesOffLayer, editLayerFurther},
    {"press Cancel during the edit", takeAxesOffLayer, press<DialogItem::Cancel>},
    {"reposition a layer's axes", makeLive, repositionLayer},
    {"change their active sector", makeLive, chooseSector},
    {"take a drag of theirs back", makeLive, escapeFromDrag},
    {"draw", nothing, draw},
    {"choose the tool and hover", makeLive, chooseToolAndHover},
};

} // namespace

TEST_CASE("whichever host call fails, the tool goes on, and undo brings the document back") {
    sweepFaults(kActions);
}
