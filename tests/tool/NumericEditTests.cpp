#include "tests/tool/Drawing.h"
#include "tests/tool/KeysHeld.h"

#include "symmetry/LayerAxesStore.h"
#include "tool/axes/NumericEdit.h"

using namespace facetta;
using namespace facetta::tests;
using platform::Key;

namespace {

/// What the user does in the dialog: turns the axes and moves their origin, as the dialog does at
/// once on the screen, then answers.
template <DialogResult Answer> DialogResult turnAndMove(ToolSession& session) {
    CHECK(session.dialogs.open);
    editAngle(session, kPi / 4 + 2 * kPi);
    for (const double by : {50.0, -20.0}) {
        const SymmetryAxes& axes = session.state.axes;
        editOrigin(session, {axes.originX + by, axes.originY});
    }
    return Answer;
}

void doubleClick(ToolInHand& session) {
    for (int click = 0; click < 2; ++click)
        session.click(session.onRay(0, 200));
}

} // namespace

TEST_CASE("two clicks on pending axes open the dialog; OK keeps what it did, Cancel does not") {
    for (const bool ok : {true, false}) {
        Drawing session(/*selected*/ false);
        thePlugin->dialogs.editAxes =
            ok ? turnAndMove<DialogResult::Ok> : turnAndMove<DialogResult::Cancel>;
        const SymmetryAxes before = session.axes();
        session.click(session.onRay(0, 200));
        CHECK(session.axes() == before);
        CHECK(session.tool().secondClick);
        session.click(session.onRay(0, 200));
        CHECK_FALSE(session.tool().secondClick);
        CHECK_FALSE(thePlugin->dialogs.open);
        CHECK(session.axes().provisional);
        CHECK((session.axes() == before) == !ok);
        if (ok) CHECK(near(session.axes().angle, kPi / 4));
        CHECK(near(thePlugin->preferences.angle, kPi / 4)); // even so
    }
}

TEST_CASE("a drag between two clicks makes them separate") {
    Drawing session(/*selected*/ false);
    thePlugin->dialogs.editAxes = turnAndMove<DialogResult::Ok>;
    session.click(session.onRay(0, 200));
    session.dragFrom(session.onRay(0, 200), session.onRay(0.25, 200));
    session.click(session.onRay(0, 200));
    CHECK(near(session.axes().angle, kPi / 12));
}

TEST_CASE("the dialog on a layer's axes: an edit apart from the layer, or none at all") {
    for (const bool ok : {true, false}) {
        Drawing session(/*selected*/ false);
        session.makeLive(/*withGuides*/ true);
        thePlugin->dialogs.editAxes =
            ok ? turnAndMove<DialogResult::Ok> : turnAndMove<DialogResult::Cancel>;
        const SymmetryAxes before = session.axes();
        const std::string text = session.text();
        doubleClick(session);
        CHECK(layerEditInProgress(session.tool()) == ok);
        CHECK(session.axes().provisional == ok);
        CHECK(session.axes().onLayer == !ok);
        CHECK(axesOnLayer(session.tool()) == !ok);
        if (ok) {
            CHECK(session.host.undoText() == "Undo Edit Symmetry Axes");
            CHECK(session.guideAngles() == std::vector{45, 105, 165});
            session.click(session.onButton(DialogItem::Cancel));
            CHECK(session.guideAngles() == std::vector{0, 60, 120});
        } else {
            CHECK(session.text() == text);
        }
        CHECK(session.axes() == before);
    }
}

TEST_CASE("with Alt the dialog takes the art of the layer along") {
    for (const bool ok : {true, false}) {
        Drawing session(/*selected*/ false);
        session.makeLive();
        thePlugin->dialogs.editAxes =
            ok ? turnAndMove<DialogResult::Ok> : turnAndMove<DialogResult::Cancel>;
        const SymmetryAxes before = session.axes();
        const std::string text = session.text();
        {
            const KeysHeld held({Key::Alt});
            doubleClick(session);
        }
        CHECK(session.axes().onLayer);
        CHECK_FALSE(session.axes().provisional);
        CHECK_FALSE(repositionMode(session.tool()));
        CHECK_FALSE(session.tool().repositionArt);
        CHECK((session.text() == text) == !ok);
        if (!ok) {
            CHECK(session.axes() == before);
            continue;
        }
        SymmetryAxes stored;
        session.host.edit("Look",
                          [&](easel::Document&) { CHECK(LayerAxesStore::read(nullptr, stored)); });
        CHECK(near(stored.angle, kPi / 4));
        CHECK(near(stored.originX, before.originX + 30));
        CHECK(session.host.undoText() == "Undo Reposition Symmetry Axes");
    }
}

TEST_CASE("what counts for the dialog is whether Alt is held when it opens") {
    Drawing session(/*selected*/ false);
    session.makeLive();
    thePlugin->dialogs.editAxes = turnAndMove<DialogResult::Ok>;
    session.click(session.onRay(0, 200));
    const AIRealPoint axis = session.onRay(0, 200);
    {
        const KeysHeld held({Key::Alt});
        session.press(axis.h, axis.v);
    }
    session.release(axis.h, axis.v);
    CHECK(session.axes().provisional);
    CHECK_FALSE(session.axes().onLayer);
    session.host.edit("Look", [&](easel::Document&) {
        SymmetryAxes stored;
        CHECK_FALSE(LayerAxesStore::read(nullptr, stored));
    });
}
