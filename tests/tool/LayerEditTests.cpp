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
    CHECK(session.tool().committed);
    CHECK_FALSE(session.tool().layerEdit);
    CHECK_FALSE(session.tool().releasedCopies);
    CHECK(session.textButStamp() == session.before);
}

} // namespace

TEST_CASE("a drag takes the axes off their layer; what was generated becomes ordinary art") {
    EditedLayer session;
    CHECK(near(session.axes().angle, 20 * kPi / 180));
    CHECK(session.axes().provisional);
    CHECK_FALSE(session.axes().onLayer);
    CHECK_FALSE(session.tool().committed);
    CHECK(session.tool().layerEdit);
    CHECK(session.host.undoText() == "Undo Edit Symmetry Axes");
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 0);
    CHECK(session.text().find("FacettaFT") == std::string::npos);
    CHECK(session.text().find("FTMirroredv1") == std::string::npos);

    // One more drag belongs to the same edit.
    session.dragFrom(session.onRay(0, 200), session.onRay(0.5, 200));
    CHECK(session.tool().layerBackup == session.applied);
}

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
    session.host.edit("New Sublayer", [](easel::Document& document) {
        easel::Art& top = *document.state().currentLayer;
        easel::setCurrentLayer(document,
                               easel::createLayer(document, "Inner", easel::onTopOf(top)));
        drawLine(document, {320, -150}, {350, -140}, /*selected*/ false);
    });
    session.makeLive();
    const std::string before = session.textButStamp();
    REQUIRE(countPaths(session.document(), /*lockedOnes*/ true) == 10);
    session.dragFrom(session.onRay(1, 200), session.onRay(1.25, 200));
    CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 0);
    session.click(session.onButton(DialogItem::Cancel));
    CHECK(session.textButStamp() == before);
}

TEST_CASE("guides along the axes of a layer go with them") {
    EditedLayer session(/*withGuides*/ true);
    CHECK(session.guideAngles() == std::vector{20, 80, 140});
    session.dragFrom(session.onRay(0, 200), session.onRay(0.5, 200));
    CHECK(session.guideAngles() == std::vector{50, 110, 170});
    session.click(session.onButton(DialogItem::Cancel));
    CHECK(session.guideAngles() == std::vector{0, 60, 120});
}

TEST_CASE("an edit that is undone leaves the axes on the layer") {
    EditedLayer session(/*withGuides*/ true);
    CHECK(session.host.undo());
    checkIsApplied(session);
}

TEST_CASE("edited axes applied to the layer mirror its art anew") {
    EditedLayer session;
    session.click(session.onButton(DialogItem::ApplyToLayer));
    CHECK(session.axes().onLayer);
    CHECK_FALSE(session.axes().provisional);
    CHECK(session.tool().committed);
    CHECK_FALSE(session.tool().layerEdit);
    CHECK_FALSE(session.tool().releasedCopies);
    CHECK(near(session.axes().angle, 20 * kPi / 180));
    CHECK(session.host.undoText() == "Undo Apply Symmetry Axes to Layer");
    CHECK(session.host.undo());
    CHECK(session.host.undo());
    checkIsApplied(session);
}

TEST_CASE("what else ends the edit of a layer's axes") {
    SUBCASE("another layer is chosen: the axes go on as new ones, which Cancel drops") {
        EditedLayer session;
        const std::string edited = session.textButStamp();
        easel::Art* const first = session.document().state().currentLayer;
        session.host.edit("New Layer", [](easel::Document& document) {
            easel::setCurrentLayer(
                document, easel::createLayer(document, "Layer 2", easel::onTopOf(document.root())));
        });
        CHECK(session.axes().provisional);
        CHECK_FALSE(session.tool().layerEdit);
        session.click(session.onButton(DialogItem::Cancel));
        CHECK_FALSE(session.axes().provisional);
        CHECK(session.tool().zone == ToolZone::Canvas);
        session.host.edit("Choose Layer", [&](easel::Document& document) {
            easel::setCurrentLayer(document, *first);
        });
        CHECK_FALSE(session.axes().onLayer); // it has lost them
    }
    SUBCASE("the tool is put away: the axes are dropped") {
        EditedLayer session;
        session.host.selectTool(nullptr);
        CHECK_FALSE(hasAxes(session.tool()));
        CHECK_FALSE(session.tool().layerEdit);
        CHECK_FALSE(session.tool().releasedCopies);
    }
    SUBCASE("the document is closed") {
        EditedLayer session;
        session.host.close(session.document());
        CHECK_FALSE(session.tool().layerEdit);
        CHECK_FALSE(session.tool().releasedCopies);
    }
    SUBCASE("the selection is mirrored instead") {
        EditedLayer session;
        session.click(session.onButton(DialogItem::ApplyToSelection));
        CHECK_FALSE(hasAxes(session.tool()));
        CHECK_FALSE(session.tool().layerEdit);
        CHECK(session.host.undoText() == "Undo Apply Symmetry Axes to Selection");
    }
}

TEST_CASE("a click on a layer's axes leaves them on it") {
    Drawing session(/*selected*/ false);
    session.makeLive();
    const std::string before = session.text();
    session.click(session.onRay(0, 200));
    CHECK(session.axes().onLayer);
    CHECK_FALSE(session.tool().layerEdit);
    CHECK(session.text() == before);
}
