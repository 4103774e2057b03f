#include "host/Error.h"
#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

/// The names of the art in a set that `fill` fills.
template <typename Fill> std::string namesIn(Fill fill) {
    AIArtSet set = nullptr;
    REQUIRE(artSet().NewArtSet(&set) == kNoErr);
    CHECK(fill(set) == kNoErr);
    std::size_t count = 0;
    CHECK(artSet().CountArtSet(set, &count) == kNoErr);
    std::string names;
    for (std::size_t i = 0; i < count; ++i) {
        AIArtHandle each = nullptr;
        CHECK(artSet().IndexArtSet(set, i, &each) == kNoErr);
        const std::string& name = session().artOf(each).details().name;
        names += name.empty() ? "?" : name;
    }
    AIArtHandle beyond = nullptr;
    CHECK(artSet().IndexArtSet(set, count, &beyond) == kBadParameterErr);
    CHECK(artSet().DisposeArtSet(&set) == kNoErr);
    CHECK(set == nullptr);
    return names;
}

/// Group g with paths a (selected) and b, then a locked path l, a sublayer with path s, and a
/// plug-in group whose edit art holds e and whose result art holds r.
struct VariedDrawing : Drawing {
    VariedDrawing() {
        const AIArtHandle group = make(kGroupArt);
        name(group, "g");
        const AIArtHandle a = make(kPathArt, kPlaceInsideOnBottom, group);
        name(a, "a");
        name(make(kPathArt, kPlaceInsideOnBottom, group), "b");
        const AIArtHandle locked = make(kPathArt);
        name(locked, "l");
        Art& sublayer = createLayer(document, "Inner", atBottomOf(layerGroup()));
        sublayer.write(Edit::Quiet).details.write().name = "S";
        name(make(kPathArt, kPlaceInsideOnTop, sublayer.handle()), "s");
        const AIArtHandle plugin = make(kPluginArt);
        name(plugin, "P");
        name(make(kPathArt, kPlaceInsideOnTop, editArt(session().artOf(plugin))->handle()), "e");
        name(make(kPathArt, kPlaceInsideOnTop, resultArt(session().artOf(plugin))->handle()), "r");
        layerGroup().write(Edit::Quiet).details.write().name = "L";
        art().SetArtUserAttr(a, kArtSelected, kArtSelected);
        art().SetArtUserAttr(locked, kArtLocked, kArtLocked);
    }
};

TEST_CASE("matching finds art by type and attributes, in the order of the tree") {
    const VariedDrawing drawing;
    struct Row {
        const char* what;
        AIArtSpec spec;
        const char* names;
    };
    const Row rows[] = {
        {"paths", {kPathArt, 0, 0}, "ablse"},
        {"unlocked visible paths", {kPathArt, kArtLocked | kArtHidden, 0}, "abse"},
        {"locked", {kAnyArt, kArtLocked, kArtLocked}, "l"},
        {"selected", {kAnyArt, kArtSelected, kArtSelected}, "Lga"},
        {"fully selected", {kAnyArt, kArtFullySelected, kArtFullySelected}, "a"},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        AIArtSpec one = row.spec;
        CHECK(namesIn([&](AIArtSet set) { return artSet().MatchingArtSet(&one, 1, set); }) ==
              row.names);
    }
    CHECK(namesIn([](AIArtSet set) { return artSet().SelectedArtSet(set); }) == "Lga");
    const AILayerHandle layer = layerHandle(&drawing.layerGroup());
    CHECK(namesIn([&](AIArtSet set) { return artSet().LayerArtSet(layer, set); }) == "LgablSsP?e");
}

TEST_CASE("a set takes each object once, and keeps what has died") {
    const Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    AIArtSet set = nullptr;
    REQUIRE(artSet().NewArtSet(&set) == kNoErr);
    CHECK(artSet().AddArtToArtSet(set, made) == kNoErr);
    CHECK(artSet().AddArtToArtSet(set, made) == kNoErr);
    std::size_t count = 0;
    CHECK(artSet().CountArtSet(set, &count) == kNoErr);
    CHECK(count == 1);
    CHECK(art().DisposeArt(made) == kNoErr);
    AIArtHandle first = nullptr;
    CHECK(artSet().IndexArtSet(set, 0, &first) == kNoErr);
    CHECK(first == made);
    CHECK(art().ValidArt(first, 1) == 0);
    CHECK(artSet().DisposeArtSet(&set) == kNoErr);
    CHECK(artSet().DisposeArtSet(&set) == kBadParameterErr);
}

TEST_CASE("layers are counted from the top, sublayers left out; the last one stays") {
    Drawing drawing;
    Document& document = drawing.document;
    Art& first = drawing.layerGroup();
    Art& top = createLayer(document, "top", onTopOf(document.root()));
    Art& inner = createLayer(document, "inner", onTopOf(top));
    setCurrentLayer(document, top);
    ai::int32 count = 0;
    CHECK(layer().CountLayers(&count) == kNoErr);
    CHECK(count == 2);
    AILayerHandle each = nullptr;
    CHECK(layer().GetNthLayer(1, &each) == kNoErr);
    CHECK(each == layerHandle(&first));
    CHECK(layer().GetNthLayer(2, &each) == kBadParameterErr);
    CHECK(layer().GetLayerParent(layerHandle(&inner), &each) == kNoErr);
    CHECK(each == layerHandle(&top));
    CHECK(findLayer(document, "inner") == &inner);
    deleteLayer(top);
    CHECK(layer().GetCurrentLayer(&each) == kNoErr);
    CHECK(each == layerHandle(&first));
    CHECK_THROWS_AS(deleteLayer(first), ai::Error);
}

TEST_CASE("without a document calls that need one say so") {
    session().current = nullptr;
    AILayerHandle found = nullptr;
    ai::int32 count = 9;
    CHECK(layer().GetCurrentLayer(&found) == kNoDocumentErr);
    CHECK(layer().CountLayers(&count) == kNoErr);
    CHECK(count == 0);
    CHECK(undo().UndoChanges() == kNoDocumentErr);
}

} // namespace
} // namespace easel::tests
