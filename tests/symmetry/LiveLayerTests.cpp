#include "easel/document/ArtTree.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "symmetry/PenAtWork.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

#include <vector>

using namespace facetta;
using easel::Art;
using facetta::tests::EngineFixture;

namespace {

/// What the plug-in does when the host says that the document may have changed.
Regeneration follow(EngineFixture& fixture, Pen pen = Pen::IsWaitedFor) {
    Regeneration done;
    fixture.step([&] {
        fixture.document().undo().setKind(kSilentUndoContext); // as notifications are sent
        done = regenerateChangedLayers(fixture.environment(), pen);
    });
    return done;
}

int afterChange(EngineFixture& fixture) { return follow(fixture).layers; }

} // namespace

TEST_CASE("a live layer is regenerated after each change of its art, once") {
    const struct {
        std::string what;
        void (*change)(EngineFixture&);
        std::string after;
        int regenerated;
    } rows[] = {
        {"nothing happened", [](EngineFixture&) {}, "a a' b b'", 0},
        {"a path was drawn", [](EngineFixture& fixture) { fixture.build(fixture.layer(), "d"); },
         "a a' b b' d d'", 1},
        {"a source was deleted",
         [](EngineFixture& fixture) { easel::disposeArt(*fixture.layer().firstChild()); }, "b b'",
         1},
        {"a copy was deleted",
         [](EngineFixture& fixture) { easel::disposeArt(*fixture.layer().lastChild()); },
         "a a' b b'", 1},
        {"something was selected",
         [](EngineFixture& fixture) { easel::selectAll(fixture.document()); }, "a a' b b'", 0},
        {"a source was hidden",
         [](EngineFixture& fixture) {
             easel::setUserAttributes(*fixture.layer().firstChild(), kArtHidden, kArtHidden);
         },
         "-a b b'", 1},
        {"the layer was locked",
         [](EngineFixture& fixture) {
             fixture.build(fixture.layer(), "d");
             easel::setUserAttributes(fixture.layer(), kArtLocked, kArtLocked);
         },
         "a a' b b' d", 0},
        {"the layer was hidden",
         [](EngineFixture& fixture) {
             fixture.build(fixture.layer(), "d");
             easel::setUserAttributes(fixture.layer(), kArtHidden, kArtHidden);
         },
         "a a' b b' d", 0},
        {"automatic mirroring was turned off",
         [](EngineFixture& fixture) {
             SymmetryAxes axes = fixture.axes;
             axes.autoMirror = false;
             LayerAxesStore::write(axes);
         },
         "a a' b b'", 0},
        {"the axes were changed",
         [](EngineFixture& fixture) {
             SymmetryAxes axes = fixture.axes;
             axes.axisCount = 2;
             LayerAxesStore::write(axes);
         },
         "a a' a' a' b b' b' b'", 1},
    };
    for (const bool covers : {true, false})
        for (const auto& row : rows) {
            INFO(row.what, "; stamps of groups cover what they contain: ", covers);
            easel::Switches switches;
            switches.stampsCoverDescendants = covers;
            EngineFixture fixture{switches};
            fixture.build(fixture.layer(), "a b");
            fixture.setAxes(1);
            fixture.attach();
            fixture.step([&] { row.change(fixture); });
            CHECK(afterChange(fixture) == row.regenerated);
            CHECK(fixture.notationOf(fixture.layer()) == row.after);
            CHECK(afterChange(fixture) == 0); // its own changes call for nothing more
            CHECK(fixture.live.mirrored);
        }
}

TEST_CASE("an edit that follows an undo at once is not taken for the undo") {
    easel::Switches switches;
    switches.undoRestoresStamps = false;
    EngineFixture fixture{switches};
    fixture.build(fixture.layer(), "a");
    fixture.setAxes(1);
    fixture.attach();
    fixture.build(fixture.layer(), "b");
    afterChange(fixture);
    fixture.document().undo().undo(); // the host tells of it late
    fixture.build(fixture.layer(), "d");
    CHECK(afterChange(fixture) == 1);
    CHECK(fixture.notationOf(fixture.layer()) == "a a' d d'");
}

TEST_CASE("opening a drawing changes nothing; the first edit of it is mirrored") {
    for (const bool covers : {true, false}) {
        easel::Switches switches;
        switches.stampsCoverDescendants = covers;
        EngineFixture fixture{switches};
        fixture.build(fixture.layer(), "a");
        fixture.setAxes(1);
        fixture.attach();
        fixture.reopen();
        fixture.document().setModified(false);
        CHECK(afterChange(fixture) == 0);
        CHECK_FALSE(fixture.document().isModified());
        fixture.build(fixture.layer(), "b");
        CHECK(afterChange(fixture) == 1);
        CHECK(fixture.notationOf(fixture.layer()) == "a a' b b'");
    }
}

namespace {

/// What the host's pen does with a click: a new anchor of the path, which alone is selected.
void clickPen(EngineFixture& fixture, Art*& path, Point at) {
    fixture.step([&] {
        if (path == nullptr) path = &fixture.addPath(fixture.layer(), {}, false);
        easel::deselectAll(fixture.document());
        const AIRealPoint point = narrow(at);
        path->write().segments.write().push_back({point, point, point, true});
        easel::select(*path, true);
    });
}

} // namespace

TEST_CASE("a path that the pen draws is mirrored when it is done") {
    const struct {
        std::string what;
        void (*happens)(EngineFixture&, Art& path);
        int regenerated;
    } rows[] = {
        {"nothing", [](EngineFixture&, Art&) {}, 0},
        {"the path is closed", [](EngineFixture&, Art& path) { path.write().closed = true; }, 1},
        {"another tool is taken",
         [](EngineFixture& fixture, Art&) {
             fixture.shellSide().currentTool = "Adobe Select Tool";
         },
         1},
        {"nothing is selected any more",
         [](EngineFixture& fixture, Art&) { easel::deselectAll(fixture.document()); }, 1},
        {"something else is selected as well",
         [](EngineFixture& fixture, Art&) { easel::select(*fixture.layer().firstChild(), true); },
         1},
        {"another path is changed",
         [](EngineFixture& fixture, Art&) { fixture.layer().firstChild()->write().closed = false; },
         1},
        {"a step is undone", [](EngineFixture& fixture, Art&) { fixture.document().undo().undo(); },
         0},
    };
    for (const bool covers : {true, false})
        for (const auto& row : rows) {
            INFO(row.what, "; stamps of groups cover what they contain: ", covers);
            easel::Switches switches;
            switches.stampsCoverDescendants = covers;
            EngineFixture fixture{switches};
            fixture.shellSide().currentTool = kPenTool;
            fixture.build(fixture.layer(), "a");
            fixture.setAxes(1);
            fixture.attach();
            Art* path = nullptr;
            for (int clicks = 0; clicks < 3; ++clicks) {
                clickPen(fixture, path, {100.0 + 40 * clicks, 60.0 + 30 * (clicks % 2)});
                CHECK(afterChange(fixture) == 0);
                CHECK(follow(fixture).waits);
            }
            if (row.what == "a step is undone")
                row.happens(fixture, *path);
            else
                fixture.step([&] { row.happens(fixture, *path); });
            CHECK(afterChange(fixture) == row.regenerated);
            CHECK(path->isAlive());
        }
}

TEST_CASE("the pen's path waits through an undo, and is mirrored when the host ends it") {
    EngineFixture fixture;
    fixture.shellSide().currentTool = kPenTool;
    fixture.build(fixture.layer(), "a");
    fixture.setAxes(1);
    fixture.attach();
    Art* path = nullptr;
    for (const double x : {100.0, 140.0, 180.0})
        clickPen(fixture, path, {x, 60});
    CHECK(follow(fixture).waits);
    fixture.document().undo().undo();
    CHECK_FALSE(
        follow(fixture).waits); // while the click can be redone there is nothing to wait for
    clickPen(fixture, path, {180, 90});
    CHECK(follow(fixture).waits);
    CHECK(follow(fixture, Pen::IsDone).layers == 1);
    CHECK(fixture.notationOf(fixture.layer()) == "a a'  '");
    CHECK_FALSE(follow(fixture).waits);
}

TEST_CASE("of a path that is too long the user is told once, until it changes") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "a");
    Art* path = nullptr;
    fixture.step([&] { path = &fixture.addTooLongPath(); });
    fixture.setAxes(1);
    fixture.attach();
    CHECK(fixture.messages.size() == 1);
    const auto changeAnother = [&] { fixture.layer().firstChild()->write().closed ^= true; };
    for (int edits = 0; edits < 3; ++edits) {
        fixture.step(changeAnother);
        CHECK(afterChange(fixture) == 1);
        CHECK(fixture.messages.size() == 1);
    }
    fixture.step([&] { path->write().segments.write()[5].p.v += 1; });
    CHECK(afterChange(fixture) == 1);
    CHECK(fixture.messages.size() == 2);
}

TEST_CASE("only live layers are touched, each with its own axes") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "a");
    Art* second = nullptr;
    fixture.step([&] {
        second = &easel::createLayer(fixture.document(), "second",
                                     easel::atBottomOf(fixture.document().root()));
        easel::createLayer(fixture.document(), "third",
                           easel::atBottomOf(fixture.document().root()));
        easel::setCurrentLayer(fixture.document(), *second);
    });
    fixture.build(*second, "b");
    fixture.setAxes(2);
    fixture.attach();
    fixture.build(*second, "d");
    fixture.build(fixture.layer(), "e");
    CHECK(afterChange(fixture) == 1);
    CHECK(fixture.notationOf(fixture.layer()) == "a e");
    CHECK(fixture.notationOf(*second) == "b b' b' b' d d' d' d'");
}

TEST_CASE(
    "a released layer keeps its art, without the anchors on the axes if the user wants that") {
    for (const bool removePoints : {false, true}) {
        INFO("removing points: ", removePoints);
        EngineFixture fixture;
        fixture.build(fixture.layer(), "a");
        fixture.step([&] { fixture.addPath(fixture.layer(), {{500, 0}, {500, 50}}, false); });
        fixture.setAxes(1);
        fixture.attach();
        fixture.removePoints = removePoints;
        fixture.step([&] { easel::setSegmentSelection(*fixture.layer().lastChild(), 2, 1); });
        fixture.step([&] { releaseLayer(fixture.environment(), nullptr, ResolveTopLevel::Yes); });
        CHECK(fixture.notationOf(fixture.layer()) == "a a ");
        const std::size_t anchors = fixture.layer().lastChild()->segments().size();
        CHECK(anchors == (removePoints ? 2 : 3));
        for (std::size_t i = 0; i < anchors; ++i) // the last is selected still
            CHECK(easel::segmentSelection(*fixture.layer().lastChild(), i) ==
                  (i + 1 == anchors ? kSegmentPointSelected : kSegmentNotSelected));
        CHECK(afterChange(fixture) == 0);
    }
}

namespace {

/// A life of a live layer, told after each step.
std::string lifeOfALayer(easel::Switches switches) {
    EngineFixture fixture{switches};
    std::string story;
    const auto tell = [&] {
        story += fixture.notationOf(fixture.layer()) + " selected:";
        const Art* const layer = &fixture.layer();
        int number = 0;
        for (const Art* art = easel::nextInPreorder(*layer, *layer); art != nullptr;
             art = easel::nextInPreorder(*art, *layer), ++number)
            if (art->has(kArtFullySelected)) story += ' ' + std::to_string(number);
        story += '\n';
    };
    fixture.build(fixture.layer(), "@a l(@b #d) #l2(l3(@e)) c(f h) k(!m @t) ~x ^y");
    fixture.setAxes(2);
    fixture.attach();
    tell();
    fixture.build(fixture.layer(), "@z");
    afterChange(fixture);
    tell();
    fixture.document().undo().undo();
    afterChange(fixture);
    tell();
    CHECK(fixture.document().undo().redo());
    afterChange(fixture);
    tell();
    fixture.document().undo().undo();
    fixture.step([&] { releaseLayer(fixture.environment(), nullptr, ResolveTopLevel::Yes); });
    tell();
    fixture.step([&] { easel::selectAll(fixture.document()); });
    fixture.mirrorSelection();
    tell();
    return story;
}

} // namespace

TEST_CASE("what the host's interface leaves open makes no difference") {
    const struct {
        std::string name;
        bool easel::Switches::*flipped;
    } rows[] = {
        {"duplicatesKeepLocks", &easel::Switches::duplicatesKeepLocks},
        {"duplicatesKeepSelection", &easel::Switches::duplicatesKeepSelection},
        {"layerSetHasOwnGroup", &easel::Switches::layerSetHasOwnGroup},
        {"sublayerGroupHasParent", &easel::Switches::sublayerGroupHasParent},
        {"undoRestoresStamps", &easel::Switches::undoRestoresStamps},
        {"lockedMembersGoAlong", &easel::Switches::lockedMembersGoAlong},
        {"transformReachesMembers", &easel::Switches::transformReachesMembers},
        {"lockingDeselects", &easel::Switches::lockingDeselects},
        {"membersShareStyle", &easel::Switches::membersShareStyle},
        {"disposeRefusesLocked", &easel::Switches::disposeRefusesLocked},
        {"wrongEntryTypeHasOwnCode", &easel::Switches::wrongEntryTypeHasOwnCode},
        {"silentFollowsStep", &easel::Switches::silentFollowsStep},
        {"stampsCoverDescendants", &easel::Switches::stampsCoverDescendants},
        {"countIs64Bits", &easel::Switches::countIs64Bits},
        {"selectingLockedFails", &easel::Switches::selectingLockedFails},
        {"dictionaryHasPointerSlots", &easel::Switches::dictionaryHasPointerSlots},
        {"entryStringsLast", &easel::Switches::entryStringsLast},
    };
    const std::string usual = lifeOfALayer({});
    for (const auto& row : rows) {
        INFO(row.name);
        easel::Switches switches;
        switches.*row.flipped = !(switches.*row.flipped);
        CHECK(lifeOfALayer(switches) == usual);
    }
}
