#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

/// The names of the children, front-most first; checks that walking backwards meets the same ones.
std::string childrenOf(AIArtHandle parent) {
    std::string forwards;
    std::string backwards;
    AIArtHandle each = nullptr;
    for (art().GetArtFirstChild(parent, &each); each != nullptr; art().GetArtSibling(each, &each))
        forwards += session().artOf(each).details().name;
    for (const Art* last = session().artOf(parent).lastChild(); last != nullptr;
         last = last->previous())
        backwards = last->details().name + backwards;
    CHECK(forwards == backwards);
    return forwards;
}

TEST_CASE("a paint order puts new art and copies where it says") {
    struct Row {
        const char* what;
        ai::int16 order;
        bool besideB;
        const char* inGroup;
        const char* inLayer;
    };
    const Row rows[] = {
        {"above", kPlaceAbove, true, "axbc", ""},
        {"below", kPlaceBelow, true, "abxc", ""},
        {"inside on top", kPlaceInsideOnTop, false, "xabc", ""},
        {"inside on bottom", kPlaceInsideOnBottom, false, "abcx", ""},
        {"above all", kPlaceAboveAll, false, "abc", "xg"},
        {"below all", kPlaceBelowAll, false, "abc", "gx"},
    };
    for (const bool copied : {false, true}) {
        for (const auto& row : rows) {
            INFO(row.what);
            const Drawing drawing;
            const AIArtHandle group = drawing.make(kGroupArt);
            drawing.name(group, "g");
            AIArtHandle b = nullptr;
            for (const char* name : {"a", "b", "c"}) {
                const AIArtHandle made = drawing.make(kPathArt, kPlaceInsideOnBottom, group);
                drawing.name(made, name);
                if (*name == 'b') b = made;
            }
            const AIArtHandle reference = row.besideB ? b : group;
            AIArtHandle x = nullptr;
            if (copied) {
                const AIArtHandle source = drawing.make(kPathArt, kPlaceInsideOnTop, group);
                CHECK(art().DuplicateArt(source, row.order, reference, &x) == kNoErr);
                CHECK(art().DisposeArt(source) == kNoErr);
            } else {
                x = drawing.make(kPathArt, row.order, reference);
            }
            drawing.name(x, "x");
            CHECK(childrenOf(group) == row.inGroup);
            if (*row.inLayer != 0) CHECK(childrenOf(drawing.layerGroup().handle()) == row.inLayer);
        }
    }
}

TEST_CASE("places where art cannot go are refused and nothing changes") {
    const Drawing drawing;
    const AIArtHandle group = drawing.make(kGroupArt);
    const AIArtHandle path = drawing.make(kPathArt);
    const AIArtHandle compound = drawing.make(kCompoundPathArt);
    const AIArtHandle plugin = drawing.make(kPluginArt);
    const AIArtHandle layer = drawing.layerGroup().handle();
    const auto foreign = reinterpret_cast<AIArtHandle>(std::uintptr_t{0x1234567890});
    const std::string before = dump(drawing.document);

    AIArtHandle made = nullptr;
    const auto create = [&](ai::int16 type, ai::int16 order, AIArtHandle reference) {
        return art().NewArt(type, order, reference, &made);
    };
    CHECK(create(kPathArt, kPlaceAbove, nullptr) == kBadParameterErr);
    CHECK(create(kPathArt, kPlaceInsideOnTop, path) == kBadParameterErr);
    CHECK(create(kPathArt, kPlaceInsideOnTop, plugin) == kBadParameterErr);
    CHECK(create(kPathArt, 7, group) == kUnknownPaintOrderTypeErr);
    CHECK(create(kPathArt, kPlaceAbove, layer) == kUntouchableArtObjectErr);
    CHECK(create(kPluginArt, kPlaceInsideOnTop, compound) == kInvalidArtTypeForDestErr);
    CHECK(create(kMeshArt, kPlaceInsideOnTop, group) == kUnknownArtTypeErr);
    CHECK(create(kPathArt, kPlaceInsideOnTop, foreign) == kBadParameterErr);
    CHECK(art().DuplicateArt(layer, kPlaceInsideOnTop, group, &made) == kUntouchableArtObjectErr);
    CHECK(art().DisposeArt(layer) == kUntouchableArtObjectErr);
    CHECK(dump(drawing.document) == before);
}

TEST_CASE("a copy carries what the original has, all the way down") {
    const Drawing drawing;
    const AIArtHandle group = drawing.make(kGroupArt);
    const AIArtHandle child = drawing.makePath({{1, 2}, {3, 4}});
    drawing.moveInto(group, child);
    CHECK(path().SetPathGuide(child, 1) == kNoErr);
    session().artOf(child).dictionary().set(internKey("tag"), 7);
    drawing.name(child, "named");
    CHECK(art().SetArtUserAttr(child, kArtLocked, kArtLocked) == kNoErr);
    const std::string one = dump(drawing.document);

    AIArtHandle copy = nullptr;
    CHECK(art().DuplicateArt(group, kPlaceBelow, group, &copy) == kNoErr);
    const std::string two = dump(drawing.document);
    const std::size_t start = one.find("  group");
    CHECK(two == one + one.substr(start));

    session()
        .artOf(session().artOf(copy).firstChild()->handle())
        .dictionary()
        .set(internKey("tag"), 8);
    const auto* original = session().artOf(child).dictionary().find(internKey("tag"));
    CHECK(std::get<ai::int32>(*original) == 7);
}

TEST_CASE("edit and result art hang on their plug-in group without being its children") {
    const Drawing drawing;
    const AIArtHandle plugin = drawing.make(kPluginArt);
    const auto& groups = suite<AIPluginGroupSuite>(kAIPluginGroupSuite, kAIPluginGroupSuiteVersion);
    AIArtHandle edit = nullptr;
    AIArtHandle result = nullptr;
    CHECK(groups.GetPluginArtEditArt(plugin, &edit) == kNoErr);
    CHECK(groups.GetPluginArtResultArt(plugin, &result) == kNoErr);
    AIArtHandle found = plugin;
    CHECK(art().GetArtFirstChild(plugin, &found) == kNoErr);
    CHECK(found == nullptr);
    CHECK(art().GetArtSibling(edit, &found) == kNoErr);
    CHECK(found == nullptr);
    CHECK(art().GetArtParent(result, &found) == kNoErr);
    CHECK(found == plugin);

    drawing.make(kPathArt, kPlaceInsideOnTop, edit);
    drawing.make(kPathArt, kPlaceInsideOnTop, result);
    AIArtHandle copy = nullptr;
    CHECK(art().DuplicateArt(plugin, kPlaceBelow, plugin, &copy) == kNoErr);
    CHECK(editArt(session().artOf(copy))->firstChild() != nullptr);
    CHECK(resultArt(session().artOf(copy))->firstChild() != nullptr);
}

TEST_CASE("walks survive art nested ten thousand deep") {
    Drawing drawing;
    const Record record(drawing.document);
    Art* deepest = &drawing.layerGroup();
    for (int i = 0; i < 10'000; ++i)
        deepest = &createArt(drawing.document, kGroupArt, onTopOf(*deepest));
    createArt(drawing.document, kPathArt, onTopOf(*deepest));
    select(drawing.layerGroup(), true);
    CHECK(selectionOf(drawing.layerGroup()) == Selected::Fully);
    Art& top = *drawing.layerGroup().firstChild();
    Art& copy = duplicateArt(top, behind(top));
    CHECK(subtreeStamp(copy) > subtreeStamp(top));
    disposeArt(top);
}

} // namespace
} // namespace easel::tests
