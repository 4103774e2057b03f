#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "tests/symmetry/EngineFixture.h"

#include <doctest/doctest.h>

using namespace facetta;
using easel::Art;
using facetta::tests::EngineFixture;

namespace {

/// What the plug-in does when the host says that the document may have changed.
int afterChange(EngineFixture& fixture) {
    int regenerated = 0;
    fixture.step([&] {
        fixture.document().undo().setKind(kSilentUndoContext); // as notifications are sent
        regenerated = regenerateChangedLayers(fixture.environment());
    });
    return regenerated;
}

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
    for (const auto& row : rows) {
        INFO(row.what);
        EngineFixture fixture;
        fixture.build(fixture.layer(), "a b");
        fixture.setAxes(1);
        fixture.attach();
        fixture.step([&] { row.change(fixture); });
        CHECK(afterChange(fixture) == row.regenerated);
        CHECK(fixture.notationOf(fixture.layer()) == row.after);
        CHECK(afterChange(fixture) == 0); // its own changes call for nothing more
    }
}

TEST_CASE("one undo takes back the edit with the regeneration it brought about") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "a");
    fixture.setAxes(3);
    fixture.attach();
    const std::string before = easel::dump(fixture.document());
    fixture.build(fixture.layer(), "b");
    CHECK(afterChange(fixture) == 1);
    const std::string after = easel::dump(fixture.document());
    CHECK(fixture.document().undo().undo());
    CHECK(easel::dump(fixture.document()) == before);
    CHECK(afterChange(fixture) == 0);
    CHECK(fixture.document().undo().redo());
    CHECK(easel::dump(fixture.document()) == after);
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

TEST_CASE("a layer attached without automatic mirroring is mirrored once and then on demand") {
    EngineFixture fixture;
    fixture.build(fixture.layer(), "a");
    fixture.setAxes(1);
    fixture.attach(/*autoMirror*/ false);
    CHECK(fixture.axes.onLayer);
    CHECK_FALSE(fixture.axes.autoMirror);
    fixture.build(fixture.layer(), "b");
    CHECK(afterChange(fixture) == 0);
    fixture.regenerate();
    CHECK(fixture.notationOf(fixture.layer()) == "a a' b b'");
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
        fixture.step([&] { releaseLayer(fixture.environment(), nullptr, ResolveTopLevel::Yes); });
        CHECK(fixture.notationOf(fixture.layer()) == "a a ");
        const std::size_t anchors = fixture.layer().lastChild()->segments().size();
        CHECK(anchors == (removePoints ? 2 : 3));
        CHECK(afterChange(fixture) == 0);
    }
}

namespace {

/// A life of a live layer, told after each step.
std::string lifeOfALayer(easel::Switches switches) {
    EngineFixture fixture{switches};
    std::string story;
    const auto tell = [&] { story += fixture.notationOf(fixture.layer()) + '\n'; };
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
        {"disposeRefusesLocked", &easel::Switches::disposeRefusesLocked},
        {"wrongEntryTypeHasOwnCode", &easel::Switches::wrongEntryTypeHasOwnCode},
        {"silentFollowsStep", &easel::Switches::silentFollowsStep},
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
