#include "tests/tool/KeysHeld.h"
#include "tests/ui/PanelInHand.h"

#include <algorithm>
#include <vector>

using namespace facetta;
using namespace facetta::tests;
using namespace facetta::panel_item;

namespace {

enum Entry {
    kCopy = 2,
    kPasteAsProvisional = 3,
    kPasteToLayer = 4,
    kAddGuides = 6,
    kRemoveGuides = 7,
    kRemoveAll = 9,
    kCentre = 11,
};

/// Axes on the layer, copied; another layer without any is chosen.
struct Copied : PanelInHand {
    Copied() {
        applyToLayer();
        choose(kCopy);
        newLayer();
    }
};

} // namespace

TEST_CASE("the menu offers what can be done") {
    struct Row {
        std::string what;
        void (*prepare)(PanelInHand&);
        std::vector<int> offered; ///< beside the size and the preferences
    };
    const Row rows[] = {
        {"no axes", [](PanelInHand& s) { s.click(kCancel); }, {}},
        {"pending axes without the dialog",
         [](PanelInHand& s) { s.preferences().useAnnotationDialog = false; },
         {}},
        {"another layer, nothing copied",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.newLayer();
         },
         {kRemoveAll}},
        {"a locked layer's axes",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.lockLayer();
         },
         {kCopy, kRemoveAll}},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        PanelInHand session;
        row.prepare(session);
        for (const int entry : {kCopy, kPasteAsProvisional, kPasteToLayer, kAddGuides,
                                kRemoveGuides, kRemoveAll, kCentre}) {
            INFO("entry ", entry);
            CHECK(session.offers(entry) == (std::ranges::count(row.offered, entry) != 0));
        }
    }
}

TEST_CASE("axes pasted as provisional wait to be applied, with the tool in hand") {
    Copied session;
    session.host.selectTool(nullptr);
    session.choose(kPasteAsProvisional);
    CHECK(session.tool().toolSelected);
    CHECK(session.tool().activity == Activity::AxesPending);
    CHECK(axesModified(session.tool()));
    CHECK(near(session.origin(), {200, -200}));
    CHECK(session.isEnabled(kCancel));
}

TEST_CASE(
    "a sublayer has the axes of its layer: none are pasted beside them, Cancel takes them off") {
    PanelInHand session;
    session.newSublayer();
    session.applyToLayer();
    session.choose(kCopy);
    CHECK_FALSE(session.offers(kPasteToLayer));
    session.click(kCancel);
    CHECK_FALSE(someLayerHasAxes());
}

TEST_CASE("pasting takes the place of what was pending") {
    Copied session;
    session.dragFrom({500, -500}, {600, -500});
    session.choose(kPasteToLayer);
    CHECK(near(session.origin(), {200, -200}));
    CHECK(session.tool().activity == Activity::ShowingLayerAxes);
    session.host.undo();
    CHECK(session.tool().activity == Activity::AxesPending); // offered again
    CHECK(near(session.origin(), {500, -500}));
}

TEST_CASE("axes pasted in the middle of an edit are edited; Cancel brings back the layer's") {
    PanelInHand session;
    session.applyToLayer();
    session.choose(kCopy);
    const std::string before = session.textButStamp();
    session.type(kOriginY, "300");
    session.choose(kPasteAsProvisional);
    CHECK(layerEditInProgress(session.tool()));
    CHECK(near(session.origin(), {200, -200}));
    session.click(kCancel);
    CHECK(session.textButStamp() == before);
}

TEST_CASE("the licence may refuse pasting to a layer") {
    Copied session;
    const std::string before = session.text();
    session.licence.refuse({GuardedAction::PasteToLayer});
    session.choose(kPasteToLayer);
    CHECK(session.text() == before);
    CHECK_FALSE(axesOnLayer(session.tool()));
}

TEST_CASE("the axes of all layers are removed at once, locked ones too; Shift leaves the guides") {
    for (const bool shift : {false, true}) {
        CAPTURE(shift);
        PanelInHand session;
        session.applyToLayer(/*withGuides*/ true);
        session.choose(kCopy);
        session.newLayer();
        session.choose(kPasteToLayer);
        session.choose(kAddGuides);
        session.lockLayer();
        REQUIRE(session.guideAngles().size() == 6);
        if (shift) holdKeys({platform::Key::Shift});
        session.choose(kRemoveAll);
        holdKeys({});
        CHECK_FALSE(someLayerHasAxes());
        CHECK(session.guideAngles().size() == (shift ? 6U : 0U));
        CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 0); // copies are let go
        CHECK_FALSE(axesOnLayer(session.tool()));
    }
}

TEST_CASE("removing all axes drops those that were pending") {
    PanelInHand session;
    session.applyToLayer();
    session.newLayer();
    session.dragFrom({500, -500}, {600, -500});
    session.choose(kRemoveAll);
    CHECK(session.tool().activity == Activity::FollowingCursor);
    CHECK(session.axes().axisCount == session.preferences().count);
}
