#include "tests/tool/Drawing.h"

#include "easel/document/Layers.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

/// A live layer whose second axis has been dragged by 20 degrees.
class EditedLayer : public Drawing {
public:
    explicit EditedLayer(bool withGuides = false) : Drawing(/*selected*/ true) {
        makeLive(withGuides);
        before = textButStamp();
        applied = axes();
        dragFrom(onRay(1, 200), onRay(1 + 1.0 / 3, 200));
    }
    std::string before;
    SymmetryAxes applied;
};

void checkIsApplied(const EditedLayer& session) {
    CHECK(session.axes() == session.applied);
    CHECK(axesOnLayer(session.tool()));
    CHECK_FALSE(layerEditInProgress(session.tool()));
    CHECK(session.textButStamp() == session.before);
}

} // namespace

TEST_CASE("Cancel gives an edited layer back its axes, its copies and its guides") {
    for (const bool withGuides : {false, true}) {
        for (const int drags : {1, 2}) {
            INFO("guides ", withGuides, ", drags ", drags);
            EditedLayer session(withGuides);
            if (drags == 2) session.dragFrom(session.onRay(0, 200), session.onRay(0.25, 200));
            session.click(session.onButton(DialogItem::Cancel));
            checkIsApplied(session);
            CHECK(session.host.undoText() == "Undo Cancel Edit Symmetry Axes");
            CHECK(session.tool().zone != ToolZone::DialogButton);

            // The layer is calm, and alive.
            session.host.notify("AI Art Selection Changed Notifier");
            CHECK(session.textButStamp() == session.before);
            const int copies = countPaths(session.document(), /*lockedOnes*/ true);
            session.host.edit("Draw Line", [](easel::Document& document) {
                drawLine(document, {280, -180}, {360, -170}, /*selected*/ false);
            });
            CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 2 * copies);
        }
    }
}

TEST_CASE("the edit reaches all of a layer from any of its sublayers") {
    Drawing session(/*selected*/ false);
    session.newSublayer();
    session.makeLive();
    const std::string before = session.textButStamp();
    REQUIRE(countPaths(session.document(), /*lockedOnes*/ true) == 10);
    session.dragFrom(session.onRay(1, 200), session.onRay(1.25, 200));
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 0);
    session.click(session.onButton(DialogItem::Cancel));
    CHECK(session.textButStamp() == before);
}

TEST_CASE("Cancel passes over copies that the user has deleted meanwhile") {
    EditedLayer session;
    session.host.edit("Delete", [](easel::Document& document) {
        easel::disposeArt(*document.state().currentLayer->firstChild()->next());
        easel::disposeArt(*document.state().currentLayer->lastChild());
    });
    session.click(session.onButton(DialogItem::Cancel));
    CHECK(session.host.user.alerts.empty());
    CHECK(axesOnLayer(session.tool()));
    const easel::Art* copy = session.document().state().currentLayer->firstChild()->next();
    REQUIRE(copy != nullptr);
    for (; copy != nullptr; copy = copy->next())
        CHECK(copy->has(kArtLocked)); // those that are left are copies again
}

TEST_CASE("guides along the axes of a layer go with them") {
    EditedLayer session(/*withGuides*/ true);
    CHECK(session.guideAngles() == std::vector{20, 80, 140});
    session.dragFrom(session.onRay(0, 200), session.onRay(0.5, 200));
    CHECK(session.guideAngles() == std::vector{50, 110, 170});
    session.click(session.onButton(DialogItem::Cancel));
    CHECK(session.guideAngles() == std::vector{0, 60, 120});
}

TEST_CASE("an edit waits while another layer or document is looked at") {
    EditedLayer session;
    const SymmetryAxes edited = session.axes();
    easel::Document& document = session.document();
    const auto checkIsBack = [&] {
        CHECK(layerEditInProgress(session.tool()));
        CHECK(session.axes() == edited);
        session.click(session.onButton(DialogItem::Cancel));
        checkIsApplied(session);
    };
    SUBCASE("another layer, and back") {
        easel::Art& first = *document.state().currentLayer;
        session.newLayer();
        CHECK(session.tool().activity == Activity::FollowingCursor);
        session.chooseLayer(first);
        session.before.insert(session.before.find("layer "),
                              "layer \"Layer 2\" colour 20303 32896 65535\n");
        checkIsBack();
    }
    SUBCASE("another document, where axes are pending") {
        easel::Document& other = session.openDocument();
        CHECK(session.tool().activity == Activity::FollowingCursor);
        session.click({300, -300});
        const SymmetryAxes pending = session.axes();
        session.host.activate(document);
        checkIsBack();
        session.host.activate(other);
        CHECK(session.tool().activity == Activity::AxesPending);
        CHECK(session.axes() == pending);
    }
    SUBCASE("undone meanwhile: the layer has its axes, and nothing is pending") {
        easel::Art& first = *document.state().currentLayer;
        session.newLayer();
        while (document.root().firstChild() != &first && session.host.undo()) {
        }
        CHECK(session.host.undo());
        checkIsApplied(session);
    }
    SUBCASE("the other document is closed") {
        easel::Document& other = session.openDocument();
        session.click({300, -300});
        session.host.close(other);
        checkIsBack();
    }
}

TEST_CASE("undo and redo bring back what was pending at the step") {
    Drawing session(/*selected*/ true);
    const SymmetryAxes pending = session.axes();
    const auto activity = [&] { return session.tool().activity; };
    session.makeLive(/*withGuides*/ true);
    session.dragFrom(session.onRay(1, 200), session.onRay(1.25, 200));
    const SymmetryAxes once = session.axes();
    session.dragFrom(session.onRay(0, 200), session.onRay(0.5, 200));
    const SymmetryAxes twice = session.axes();
    session.click(session.onButton(DialogItem::Cancel));
    REQUIRE(activity() == Activity::ShowingLayerAxes);
    for (int round = 0; round < 3; ++round) {
        INFO("round ", round);
        CHECK(session.host.undo()); // Cancel
        CHECK(activity() == Activity::EditingLayerAxes);
        CHECK(session.axes() == twice);
        CHECK(session.host.undo()); // the second drag
        CHECK(session.axes() == once);
        CHECK(session.host.undo()); // the first
        CHECK(activity() == Activity::ShowingLayerAxes);
        CHECK(session.host.undo()); // the guides
        CHECK(activity() == Activity::ShowingLayerAxes);
        CHECK(session.host.undo()); // Apply
        CHECK(activity() == Activity::AxesPending);
        CHECK(session.axes() == pending);
        for (const Activity next :
             {Activity::ShowingLayerAxes, Activity::ShowingLayerAxes, Activity::EditingLayerAxes,
              Activity::EditingLayerAxes, Activity::ShowingLayerAxes}) {
            CHECK(session.host.redo());
            CHECK(activity() == next);
        }
    }
    CHECK(session.host.undo());
    session.click(session.onButton(DialogItem::Cancel)); // of the edit that was taken up again
    CHECK(activity() == Activity::ShowingLayerAxes);
    CHECK(session.guideAngles() == std::vector{0, 60, 120});
}

TEST_CASE("an application that can no longer be redone uses up no axes") {
    Drawing session(/*selected*/ true);
    const auto draw = [&] {
        session.host.edit("Draw", [](easel::Document& document) {
            drawLine(document, {30, -30}, {40, -40}, /*selected*/ false);
        });
    };
    draw();
    session.click(session.onButton(DialogItem::ApplyToSelection));
    CHECK(session.host.undo());
    CHECK(session.host.undo());
    draw(); // from here on there is nothing to redo
    draw(); // as many steps as when the axes were applied
    CHECK(session.host.undo());
    CHECK(session.host.redo());
    CHECK(session.tool().activity == Activity::AxesPending);
}

TEST_CASE("axes that the selection was mirrored with are offered again when that is undone") {
    Drawing session(/*selected*/ true);
    const SymmetryAxes pending = session.axes();
    session.click(session.onButton(DialogItem::ApplyToSelection));
    for (int round = 0; round < 2; ++round) {
        CHECK(session.host.undo());
        CHECK(session.tool().activity == Activity::AxesPending);
        CHECK(session.axes() == pending);
        CHECK(session.host.redo());
        CHECK(session.tool().activity == Activity::FollowingCursor);
    }
    // What the user has dropped stays so, whatever is undone later.
    CHECK(session.host.undo());
    session.click(session.onButton(DialogItem::Cancel));
    session.host.edit("Draw", [](easel::Document& document) {
        drawLine(document, {30, -30}, {40, -40}, /*selected*/ false);
    });
    CHECK(session.host.undo());
    CHECK(session.tool().activity == Activity::FollowingCursor);
}
