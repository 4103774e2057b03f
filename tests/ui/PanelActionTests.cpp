#include "tests/tool/KeysHeld.h"
#include "tests/ui/PanelInHand.h"

#include <numbers>

using namespace facetta;
using namespace facetta::tests;
using namespace facetta::panel_item;

namespace {

int copiesIn(const Drawing& session) { return countPaths(session.document(), /*lockedOnes*/ true); }

void drawAnother(Drawing& session) {
    session.host.edit("Draw", [](easel::Document& page) {
        drawLine(page, {310, -150}, {330, -140}, /*selected*/ false);
    });
}

} // namespace

TEST_CASE("the mode says what axes are applied to, and takes the tool in hand") {
    for (const bool selected : {false, true}) {
        CAPTURE(selected);
        PanelInHand session(selected);
        session.host.selectTool(nullptr);
        CHECK_FALSE(session.isEnabled(kApply));
        session.click(kSelectionMode);
        CHECK(session.preferences().applyToSelection);
        CHECK(session.tool().toolSelected);
        CHECK(session.textOf(kApply) == "Apply to Selection");
        CHECK(session.isEnabled(kApply) == selected);
        CHECK_FALSE(session.isEnabled(kActive));
        CHECK_FALSE(session.isEnabled(kUpdate));
        session.host.selectTool(nullptr);
        session.click(kLayerMode);
        CHECK_FALSE(session.preferences().applyToSelection);
        CHECK(session.tool().toolSelected);
        CHECK(session.textOf(kApply) == "Apply to Layer");
        CHECK(session.isEnabled(kApply));
        CHECK(session.isEnabled(kActive));
        CHECK_FALSE(session.isEnabled(kUpdate)); // nothing to do by hand
    }
}

TEST_CASE("Apply mirrors the selection once, or attaches the axes to the layer") {
    PanelInHand session(/*selected*/ true);
    session.click(kSelectionMode);
    session.click(kApply);
    CHECK(session.host.undoText() == "Undo Apply Symmetry Axes to Selection");
    CHECK(countPaths(session.document(), false) == 6);
    CHECK_FALSE(axesModified(session.tool()));
    CHECK(annotationState(session.tool()) == 0);
    CHECK_FALSE(session.isEnabled(kCancel));
    session.host.undo(); // the axes are offered again
    session.click(kLayerMode);
    session.click(kApply);
    CHECK(session.host.undoText() == "Undo Apply Symmetry Axes to Layer");
    CHECK(session.stored().axisCount == 3);
    CHECK(copiesIn(session) == 5);
    CHECK(layerAxesActive(session.tool()));
    CHECK(session.isEnabled(kCancel));
}

TEST_CASE("axes that still follow the cursor can be placed by numbers and applied") {
    PanelInHand session;
    session.click(kCancel);
    REQUIRE(session.tool().activity == Activity::FollowingCursor);
    session.type(kOriginX, "300");
    session.type(kOriginY, "250");
    session.type(kAngle, "45");
    session.type(kCount, "4");
    session.click(kApply);
    CHECK(near(session.origin(), {300, -250}));
    const SymmetryAxes stored = session.stored();
    CHECK(stored.axisCount == 4);
    CHECK(near(stored.angle, std::numbers::pi / 4));
    CHECK(session.preferences().count == 4);
    CHECK(near(session.preferences().angle, std::numbers::pi / 4));
}

TEST_CASE("a layer that is not kept mirrored is mirrored by Update") {
    PanelInHand session;
    session.applyToLayer();
    CHECK_FALSE(session.isEnabled(kUpdate));
    session.click(kActive);
    CHECK_FALSE(session.preferences().autoMirror);
    CHECK_FALSE(session.stored().autoMirror);
    CHECK(session.isEnabled(kUpdate));
    drawAnother(session);
    CHECK(copiesIn(session) == 5);
    session.click(kUpdate);
    CHECK(copiesIn(session) == 10);
    session.click(kActive);
    CHECK(session.stored().autoMirror);
    CHECK_FALSE(session.isEnabled(kUpdate));
    drawAnother(session);
    CHECK(copiesIn(session) == 15);
}

TEST_CASE("without axes on the layer Active is for the next ones, and there is nothing to update") {
    PanelInHand session;
    session.click(kActive);
    CHECK_FALSE(session.preferences().autoMirror);
    CHECK_FALSE(session.isEnabled(kUpdate)); // changed here, a layer's axes are asked for,
    session.click(kLayerMode);
    session.click(kSelectionMode);
    session.click(kLayerMode);
    CHECK(session.isEnabled(kUpdate)); // where the mode is chosen they are not
    session.applyToLayer();
    CHECK_FALSE(session.stored().autoMirror);
}

TEST_CASE("numbers typed for pending axes move them and touch no document") {
    PanelInHand session;
    const std::string before = session.text();
    session.type(kOriginX, "250");
    session.type(kOriginY, "260");
    session.type(kAngle, "-90");
    session.type(kCount, "5");
    CHECK(near(session.origin(), {250, -260}));
    CHECK(near(session.axes().angle, 1.5 * std::numbers::pi));
    CHECK(session.axes().axisCount == 5);
    CHECK(session.preferences().count == 5);
    CHECK(session.text() == before);
    CHECK(axesModified(session.tool()));
}

TEST_CASE("numbers typed for a layer's axes take them off it, until Cancel") {
    struct Row {
        std::string what;
        int id;
        std::string typed;
        bool modified; ///< and the on-canvas dialog comes up
    };
    const Row rows[] = {
        {"x", kOriginX, "250", false},
        {"y", kOriginY, "250", true},
        {"angle", kAngle, "10", true},
        {"count", kCount, "6", true},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        PanelInHand session;
        session.applyToLayer(/*withGuides*/ true);
        const std::string before = session.textButStamp();
        const SymmetryAxes axes = session.axes();
        session.host.selectTool(nullptr);
        session.type(row.id, row.typed);
        CHECK(session.host.undoText() == "Undo Edit Symmetry Axes");
        CHECK(session.tool().toolSelected);
        CHECK(session.stored().axisCount == 0);
        CHECK(session.guideAngles().empty());
        CHECK(copiesIn(session) == 0);
        CHECK(layerEditInProgress(session.tool()));
        CHECK_FALSE(axesOnLayer(session.tool()));
        CHECK(axesModified(session.tool()) == row.modified);
        CHECK(axesHaveDialog(session.toolSession()) == row.modified);
        CHECK(annotationState(session.tool()) != 0);
        CHECK(session.isEnabled(kCancel));
        session.click(kCancel);
        CHECK(session.host.undoText() == "Undo Cancel Edit Symmetry Axes");
        CHECK(session.textButStamp() == before);
        CHECK(session.axes() == axes);
        CHECK(session.preferences().angle == axes.angle);
        CHECK(session.preferences().count == axes.axisCount);
        session.host.undo();
        CHECK(session.stored().axisCount == 0);
        session.host.undo();
        CHECK(session.textButStamp() == before);
        CHECK(axesOnLayer(session.tool()));
    }
}

TEST_CASE("an edit goes on with further numbers, and ends with Apply") {
    PanelInHand session;
    session.applyToLayer();
    session.type(kOriginX, "250");
    session.type(kCount, "4");
    CHECK_FALSE(axesModified(session.tool())); // begun by x
    session.dragFrom(session.onRay(0, 100), session.onRay(0.2, 100));
    CHECK(axesModified(session.tool())); // and gone on with by the tool
    session.click(kApply);
    CHECK(session.stored().axisCount == 4);
    CHECK(copiesIn(session) == 7);
    CHECK_FALSE(layerEditInProgress(session.tool()));
}

TEST_CASE("art drawn during an edit is mirrored when the panel cancels the edit") {
    PanelInHand session;
    session.applyToLayer();
    session.type(kAngle, "10");
    drawAnother(session);
    CHECK(copiesIn(session) == 0);
    session.click(kCancel);
    CHECK(copiesIn(session) == 10);
}

TEST_CASE("Cancel drops pending axes, and takes a layer's off it") {
    PanelInHand session;
    const std::string before = session.text();
    session.click(kCancel);
    CHECK(session.text() == before);
    CHECK_FALSE(axesPending(session.tool()));
    CHECK(annotationState(session.tool()) == 0);
    for (const bool shift : {false, true}) {
        CAPTURE(shift);
        session.dragFrom({200, -200}, {300, -200});
        session.applyToLayer(/*withGuides*/ true);
        CHECK(session.guideAngles().size() == 3);
        if (shift) holdKeys({platform::Key::Shift});
        session.click(kCancel);
        holdKeys({});
        CHECK(session.host.undoText() == "Undo Remove Symmetry Axes from Layer");
        CHECK(session.stored().axisCount == 0);
        CHECK(session.guideAngles().size() == (shift ? 3U : 0U));
        CHECK_FALSE(layerHasAxisGuides());
        CHECK_FALSE(axesOnLayer(session.tool()));
        session.host.undo();
        session.host.undo();
        session.host.undo();
    }
}

TEST_CASE("a layer that is locked keeps its axes as they are") {
    PanelInHand session;
    session.applyToLayer();
    session.host.edit("Lock", [](easel::Document& page) {
        page.state().currentLayer->write().attributes |= kArtLocked;
    });
    const std::string before = session.text();
    for (const int id : {kApply, kCancel, kUpdate, kActive})
        session.click(id);
    session.type(kOriginX, "250");
    session.type(kCount, "5");
    CHECK(session.text() == before);
    CHECK(session.textOf(kOriginX) == "200.000 pt");
    CHECK(session.textOf(kCount) == "3");
}

TEST_CASE("overlay and opacity follow each other and are drawn at once") {
    PanelInHand session;
    session.applyToLayer();
    session.click(kOverlay);
    CHECK(session.preferences().useOverlay);
    for (const int id : {kOverlayIcon, kOpacitySlider, kOpacityScale, kOpacity})
        CHECK(session.isEnabled(id));
    static_cast<void>(session.host.drawAnnotations(nullptr));
    session.type(kOpacity, "55");
    CHECK(session.preferences().opacity == doctest::Approx(0.55));
    CHECK(session.item(kOpacitySlider).value() == 55.0F);
    CHECK(session.host.needsRedraw());
    static_cast<void>(session.host.drawAnnotations(nullptr));
    session.slide(20, NRDM::Phase::InProgress);
    CHECK(session.preferences().opacity == doctest::Approx(0.2));
    CHECK(session.textOf(kOpacity) == "20%");
    CHECK(session.host.needsRedraw());
    session.click(kOverlay);
    CHECK_FALSE(session.preferences().useOverlay);
    for (const int id : {kOverlayIcon, kOpacitySlider, kOpacityScale, kOpacity})
        CHECK_FALSE(session.isEnabled(id));
}

TEST_CASE("without a document the panel keeps what is typed for the next axes") {
    Session session;
    session.host.start();
    PanelInHand::userTypes(session.host, kCount, "7");
    PanelInHand::userTypes(session.host, kAngle, "30");
    PanelInHand::userTypes(session.host, kOriginX, "100");
    CHECK(thePlugin->preferences.count == 7);
    CHECK(near(thePlugin->preferences.angle, std::numbers::pi / 6));
    CHECK(PanelInHand::textOf(kOriginX) == "0.000 pt");
    CHECK(session.host.user.alerts.empty());
}

TEST_CASE("what the user gives counts, also when the document has changed untold before") {
    struct Row {
        const char* what;
        void (*give)();
        bool (*counts)();
    };
    const Row rows[] = {
        {"box", [] { PanelInHand::item(kOverlay).clicked(); },
         [] { return thePlugin->preferences.useOverlay; }},
        {"number",
         [] {
             PanelInHand::item(kCount).typed("7");
             PanelInHand::item(kCount).commit();
         },
         [] { return thePlugin->tool.axes.axisCount == 7; }},
        {"mode", [] { PanelInHand::item(kSelectionMode).clicked(); },
         [] { return thePlugin->preferences.applyToSelection; }},
    };
    for (const Row& row : rows) {
        INFO(std::string(row.what));
        ToolInHand session;
        session.dragFrom({400, -300}, {500, -260});
        session.host.editToolOptions(); // the axes go on the layer, and there is no art to tell of
        row.give();
        CHECK(row.counts());
        CHECK(PanelInHand::isEnabled(kCancel));
    }
}
