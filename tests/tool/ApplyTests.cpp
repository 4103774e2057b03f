#include "tests/tool/Drawing.h"

#include "easel/document/Layers.h"

using namespace facetta;
using namespace facetta::tests;

TEST_CASE(
    "a double click on the tool mirrors the selection once, as one step that undo takes back") {
    Drawing session(/*selected*/ true);
    thePlugin->preferences.applyToSelection = true;
    const std::string before = session.text();
    session.host.editToolOptions();
    const std::string after = session.text();
    CHECK(countPaths(session.document(), /*lockedOnes*/ false) == 6);
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 0);
    CHECK(session.host.undoText() == "Undo Apply Symmetry Axes to Selection");
    CHECK_FALSE(session.axes().provisional);
    CHECK(thePlugin->tool.zone == ToolZone::Canvas);
    CHECK(session.axes().axisCount == thePlugin->preferences.count); // the next ones to be made

    CHECK(session.host.undo());
    CHECK(session.text() == before);
    CHECK(session.host.redo());
    CHECK(session.text() == after);
    session.host.editToolOptions(); // nothing is pending any more
    CHECK(session.text() == after);
}

TEST_CASE("with nothing selected the pending axes stay and nothing changes") {
    Drawing session(/*selected*/ false);
    thePlugin->preferences.applyToSelection = true;
    const std::string before = session.text();
    session.host.editToolOptions();
    CHECK(session.text() == before);
    CHECK(session.axes().provisional);
}

TEST_CASE(
    "applied to the layer, art stays mirrored while the user draws, and undo goes step by step") {
    Drawing session(/*selected*/ false);
    const std::string drawn = session.text();
    session.host.editToolOptions();
    const std::string live = session.text();
    CHECK(countPaths(session.document(), /*lockedOnes*/ false) == 1);
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 5);
    CHECK(session.host.undoText() == "Undo Apply Symmetry Axes to Layer");
    CHECK(session.axes().onLayer);
    CHECK(session.axes().autoMirror);
    CHECK_FALSE(session.axes().provisional);

    session.host.edit("Draw Line", [](easel::Document& document) {
        drawLine(document, {280, -180}, {360, -170}, /*selected*/ false);
    });
    CHECK(countPaths(session.document(), /*lockedOnes*/ false) == 2);
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 10);
    CHECK(session.host.undoText() == "Undo Draw Line"); // the copies belong to the user's step
    const std::string twoLines = session.text();
    session.host.notify("AI Art Selection Changed Notifier");
    CHECK(session.text() == twoLines); // calm

    CHECK(session.host.undo());
    CHECK(session.text() == live);
    CHECK(session.host.redo());
    CHECK(session.text() == twoLines);
    CHECK(session.host.undo());
    CHECK(session.host.undo());
    CHECK(session.text() == drawn);
    CHECK_FALSE(session.axes().onLayer); // the layer has none any more
    CHECK(session.host.redo());
    CHECK(session.text() == live);
    CHECK(session.axes().onLayer);
}

TEST_CASE("the axes shown are those of the current layer") {
    Drawing session(/*selected*/ false);
    session.host.editToolOptions();
    const SymmetryAxes applied = session.axes();
    easel::Document& document = session.document();
    easel::Art* const first = document.state().currentLayer;
    session.host.edit("New Layer", [](easel::Document& edited) {
        easel::setCurrentLayer(
            edited, easel::createLayer(edited, "Layer 2", easel::onTopOf(edited.root())));
    });
    CHECK_FALSE(session.axes().onLayer);
    session.host.edit("Choose Layer",
                      [&](easel::Document& edited) { easel::setCurrentLayer(edited, *first); });
    CHECK(session.axes().onLayer);
    CHECK(near(session.axes().angle, applied.angle));
    CHECK(near(hardOriginOf(session.axes()), hardOriginOf(applied)));
}

TEST_CASE("what the licence refuses to apply stays pending") {
    struct Row {
        GuardedAction refused;
        bool toSelection;
    };
    const Row rows[] = {{GuardedAction::ApplyToSelection, true},
                        {GuardedAction::ApplyToLayer, false}};
    for (const auto& [refused, toSelection] : rows) {
        Drawing session(/*selected*/ true, {LicenceState::Licensed, {refused}});
        thePlugin->preferences.applyToSelection = toSelection;
        const std::string before = session.text();
        session.host.editToolOptions();
        CHECK(session.text() == before);
        CHECK(session.axes().provisional);
    }
}

TEST_CASE("on a locked layer the tool makes nothing") {
    ToolInHand session;
    session.host.edit("Lock", [](easel::Document& document) {
        document.state().currentLayer->write().attributes |= kArtLocked;
        document.note(&easel::DocumentChanges::layerOptions);
    });
    session.host.track({.at = {100, -100}});
    CHECK(thePlugin->tool.zone == ToolZone::LayerLocked);
    session.press(100, -100);
    session.drag(200, -100);
    session.release(200, -100);
    CHECK_FALSE(session.axes().provisional);
}
