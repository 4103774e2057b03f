#include "tests/tool/KeysHeld.h"
#include "tests/ui/DialogUser.h"
#include "tests/ui/PanelInHand.h"

#include <algorithm>
#include <vector>

using namespace facetta;
using namespace facetta::tests;
using namespace facetta::panel_item;

namespace {

enum Entry {
    kToggleSize = 0,
    kCopy = 2,
    kPasteAsProvisional = 3,
    kPasteToLayer = 4,
    kAddGuides = 6,
    kRemoveGuides = 7,
    kRemoveAll = 9,
    kCentre = 11,
    kPreferences = 13,
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
        {"pending axes", [](PanelInHand&) {}, {kCentre}},
        {"pending axes without the dialog",
         [](PanelInHand& s) { s.preferences().useAnnotationDialog = false; },
         {}},
        {"a layer's axes",
         [](PanelInHand& s) { s.applyToLayer(); },
         {kCopy, kAddGuides, kRemoveAll}},
        {"a layer's axes, copied",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.choose(kCopy);
         },
         {kCopy, kAddGuides, kRemoveAll}},
        {"guides along them",
         [](PanelInHand& s) { s.applyToLayer(/*withGuides*/ true); },
         {kCopy, kRemoveGuides, kRemoveAll}},
        {"another layer, nothing copied",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.newLayer();
         },
         {kRemoveAll}},
        {"another layer, copied",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.choose(kCopy);
             s.newLayer();
         },
         {kPasteAsProvisional, kPasteToLayer, kRemoveAll}},
        {"a locked layer's axes",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.host.edit("Lock", [](easel::Document& page) {
                 page.state().currentLayer->write().attributes |= kArtLocked;
             });
         },
         {kCopy, kRemoveAll}},
        {"axes moved along x alone",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.type(kOriginX, "250");
         },
         {}},
        {"axes turned",
         [](PanelInHand& s) {
             s.applyToLayer();
             s.type(kAngle, "10");
         },
         {kCentre}},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        PanelInHand session;
        row.prepare(session);
        for (const int entry : {kToggleSize, kCopy, kPasteAsProvisional, kPasteToLayer, kAddGuides,
                                kRemoveGuides, kRemoveAll, kCentre, kPreferences}) {
            INFO("entry ", entry);
            const bool always = entry == kToggleSize || entry == kPreferences;
            CHECK(session.offers(entry) ==
                  (always || std::ranges::find(row.offered, entry) != row.offered.end()));
        }
    }
}

TEST_CASE("copied axes are pasted to wait, or onto another layer") {
    PanelInHand session;
    session.applyToLayer();
    session.choose(kCopy);
    const SymmetryAxes copied = session.axes();
    session.newLayer();
    session.host.selectTool(nullptr);
    session.choose(kPasteAsProvisional);
    CHECK(session.tool().toolSelected);
    CHECK(session.tool().activity == Activity::AxesPending);
    CHECK(axesModified(session.tool()));
    CHECK_FALSE(axesOnLayer(session.tool()));
    CHECK(session.axes().originX == copied.originX);
    CHECK(session.isEnabled(kCancel));
    session.click(kCancel);
    session.choose(kPasteToLayer);
    CHECK(session.host.undoText() == "Undo Paste Symmetry Axes to Layer");
    CHECK(layerAxesActive(session.tool()));
    CHECK(session.stored().originX == copied.originX);
    CHECK(session.stored().angle == copied.angle);
    session.host.undo();
    CHECK(session.stored().axisCount == 0);
    CHECK_FALSE(axesOnLayer(session.tool()));
    session.host.redo();
    CHECK(axesOnLayer(session.tool()));
}

TEST_CASE("pasting takes the place of what was pending") {
    PanelInHand session;
    session.applyToLayer();
    session.choose(kCopy);
    session.newLayer();
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
    PanelInHand session;
    session.applyToLayer();
    session.choose(kCopy);
    session.newLayer();
    const std::string before = session.text();
    session.licence.refuse({GuardedAction::PasteToLayer});
    session.choose(kPasteToLayer);
    CHECK(session.text() == before);
    CHECK_FALSE(axesOnLayer(session.tool()));
}

TEST_CASE("guides come and go along a layer's axes") {
    PanelInHand session;
    session.applyToLayer();
    session.choose(kAddGuides);
    CHECK(session.host.undoText() == "Undo Add Guides along Layer Axes");
    CHECK(session.guideAngles() == std::vector{0, 60, 120});
    session.choose(kRemoveGuides);
    CHECK(session.host.undoText() == "Undo Remove Guides from Layer Axes");
    CHECK(session.guideAngles().empty());
}

TEST_CASE("the axes of all layers are removed at once, with their guides") {
    for (const bool shift : {false, true}) {
        CAPTURE(shift);
        PanelInHand session;
        session.applyToLayer(/*withGuides*/ true);
        session.choose(kCopy);
        easel::Art& upper = session.newLayer();
        session.choose(kPasteToLayer);
        session.choose(kAddGuides);
        session.host.edit("Lock",
                          [&](easel::Document&) { upper.write().attributes |= kArtLocked; });
        REQUIRE(session.guideAngles().size() == 6);
        if (shift) holdKeys({platform::Key::Shift});
        session.choose(kRemoveAll);
        holdKeys({});
        CHECK(session.host.undoText() == "Undo Remove All Layer Symmetry Axes");
        CHECK_FALSE(someLayerHasAxes());
        CHECK(session.guideAngles().size() == (shift ? 6U : 0U));
        CHECK(countPaths(session.document(), /*lockedOnes*/ true) == 0); // copies are let go
        CHECK_FALSE(session.offers(kRemoveAll));
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

TEST_CASE("the on-canvas dialog is centred in the view") {
    PanelInHand session;
    session.tool().dialog = {10, 10};
    session.choose(kCentre);
    const AIRect view = thePlugin->view.pixels;
    CHECK(session.tool().dialog.x == (view.right - view.left) / 2 - 96);
    CHECK(session.tool().dialog.y == (view.bottom - view.top) / 2 - 50);
    CHECK(session.preferences().dialogX == session.tool().dialog.x);
    CHECK(session.preferences().dialogY == session.tool().dialog.y);
}

TEST_CASE("the last entry opens the preferences") {
    PanelInHand session;
    static int opened;
    opened = 0;
    thePlugin->dialogs.preferences = [](ToolSession&) {
        ++opened;
        return DialogResult::Cancel;
    };
    session.choose(kPreferences);
    CHECK(opened == 1);
}

TEST_CASE("the host may quit while a dialog is open that the panel has opened") {
    PanelInHand session;
    DialogUser user([&](DialogUser&) { session.host.quit(); });
    session.choose(kPreferences);
    CHECK(user.met == 1);
    CHECK(thePlugin == nullptr);
    CHECK(session.host.user.alerts.empty());
}
