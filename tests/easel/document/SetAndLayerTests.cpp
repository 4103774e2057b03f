#include "tests/easel/document/Plugin.h"

#include <cstring>

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
        const std::string& name = artOf(each).details().name;
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
        name(make(kPathArt, kPlaceInsideOnTop, editArt(artOf(plugin))->handle()), "e");
        name(make(kPathArt, kPlaceInsideOnTop, resultArt(artOf(plugin))->handle()), "r");
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
        {"selected leaves", {kAnyArt, kArtSelectedLeaves, kArtSelectedLeaves}, "a"},
        {"result art when asked for", {kPathArt, kMatchResultArt, 0}, "ablser"},
        {"not into plug-in groups", {kPathArt, kMatchNotIntoPluginGroups, 0}, "abls"},
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

TEST_CASE("sets are joined and cut without doubles, and keep what has died") {
    const Drawing drawing;
    AIArtHandle handles[] = {drawing.make(kPathArt), drawing.make(kPathArt),
                             drawing.make(kPathArt)};
    AIArtSet sets[3] = {};
    for (AIArtSet& set : sets)
        REQUIRE(artSet().NewArtSet(&set) == kNoErr);
    auto& [one, two, result] = sets;
    CHECK(artSet().ArrayArtSet(one, handles, 2) == kNoErr);
    CHECK(artSet().ArrayArtSet(two, handles + 1, 2) == kNoErr);
    const auto countOf = [](AIArtSet set) {
        std::size_t count = 99;
        CHECK(artSet().CountArtSet(set, &count) == kNoErr);
        return count;
    };
    CHECK(artSet().UnionArtSet(one, two, result) == kNoErr);
    CHECK(countOf(result) == 3);
    CHECK(artSet().IntersectArtSet(one, two, one) == kNoErr); // a source may be the target
    CHECK(countOf(one) == 1);
    CHECK(artSet().AddArtToArtSet(one, handles[1]) == kNoErr);
    CHECK(countOf(one) == 1);
    CHECK(art().DisposeArt(handles[1]) == kNoErr);
    AIArtHandle first = nullptr;
    CHECK(artSet().NextInArtSet(one, nullptr, &first) == kNoErr);
    CHECK(art().ValidArt(first, 1) == 0);
    CHECK(artSet().ReplaceArtInArtSet(one, handles[1], nullptr) == kNoErr);
    CHECK(artSet().NextInArtSet(one, nullptr, &first) == kNoErr);
    CHECK(first == nullptr);
    for (AIArtSet& set : sets)
        CHECK(artSet().DisposeArtSet(&set) == kNoErr);
    CHECK(artSet().DisposeArtSet(&one) == kBadParameterErr);
}

TEST_CASE("layers are listed from the top, sublayers under their parent") {
    Drawing drawing;
    AILayerHandle top = nullptr;
    AILayerHandle bottom = nullptr;
    AILayerHandle inner = nullptr;
    CHECK(layer().InsertLayer(nullptr, kPlaceAboveAll, &top) == kNoErr);
    CHECK(layer().InsertLayer(nullptr, kPlaceBelowAll, &bottom) == kNoErr);
    AIArtHandle group = nullptr;
    CHECK(art().GetFirstArtOfLayer(top, &group) == kNoErr);
    CHECK(layer().InsertLayerAtArt(group, kPlaceInsideOnTop, &inner) == kNoErr);
    const char* titles[] = {"top", "middle", "bottom", "inner"};
    AILayerHandle handles[] = {top, layerHandle(drawing.layerGroup().next()), bottom, inner};
    for (std::size_t i = 0; i < 4; ++i) {
        const HostText title(titles[i]);
        CHECK(layer().SetLayerTitle(handles[i], title.string) == kNoErr);
    }
    const auto titleOf = [](AILayerHandle handle) {
        return handle == nullptr ? std::string("none") : layerOf(handle).details().layer.title;
    };
    ai::int32 count = 0;
    CHECK(layer().CountLayers(&count) == kNoErr);
    CHECK(count == 3);
    std::string walked;
    AILayerHandle each = nullptr;
    for (layer().GetFirstLayer(&each); each != nullptr; layer().GetNextPreorderLayer(each, &each))
        walked += titleOf(each) + ' ';
    CHECK(walked == "top inner middle bottom ");
    CHECK(layer().GetNextNonChildPreorderLayer(top, &each) == kNoErr);
    CHECK(titleOf(each) == "middle");
    CHECK(layer().GetPrevLayer(bottom, &each) == kNoErr);
    CHECK(titleOf(each) == "middle");
    CHECK(layer().GetPrevLayer(inner, &each) == kNotImplementedErr);
    CHECK(layer().GetLayerParent(inner, &each) == kNoErr);
    CHECK(each == top);
    CHECK(layer().GetNthLayer(3, &each) == kBadParameterErr);
    const HostText wanted("inner");
    CHECK(layer().GetLayerByTitle(&each, wanted.string) == kNoErr);
    CHECK(each == inner);
    const HostText unknown("nobody");
    CHECK(layer().GetLayerByTitle(&each, unknown.string) == kNoErr);
    CHECK(each == nullptr);
    AIBoolean hasArt = 1;
    CHECK(layer().LayerHasArt(top, &hasArt) == kNoErr);
    CHECK(hasArt == 0); // a sublayer is no art
}

TEST_CASE("the last layer stays, and the current one is replaced when it goes") {
    const Drawing drawing;
    AILayerHandle first = nullptr;
    AILayerHandle current = nullptr;
    AILayerHandle second = nullptr;
    CHECK(layer().GetFirstLayer(&first) == kNoErr);
    CHECK(layer().DeleteLayer(first) == kCantDeleteLastLayerErr);
    CHECK(layer().InsertLayer(nullptr, kPlaceAboveAll, &second) == kNoErr);
    CHECK(layer().GetCurrentLayer(&current) == kNoErr);
    CHECK(current == second);
    CHECK(layer().DeleteLayer(second) == kNoErr);
    CHECK(layer().GetCurrentLayer(&current) == kNoErr);
    CHECK(current == first);
    CHECK(layer().SetCurrentLayer(second) == kBadParameterErr);
    AIBoolean visible = 0;
    CHECK(layer().GetLayerVisible(nullptr, &visible) == kBadParameterErr);
}

TEST_CASE("without a document calls that need one say so") {
    setCurrentDocument(nullptr);
    AILayerHandle found = nullptr;
    ai::int32 count = 9;
    CHECK(layer().GetCurrentLayer(&found) == kNoDocumentErr);
    CHECK(layer().CountLayers(&count) == kNoErr);
    CHECK(count == 0);
    CHECK(undo().UndoChanges() == kNoDocumentErr);
}

} // namespace
} // namespace easel::tests
