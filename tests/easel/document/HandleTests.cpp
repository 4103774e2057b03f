#include "easel/document/HandleTable.h"
#include "host/Error.h"
#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

TEST_CASE("a handle finds its object while it lives, as its own kind only") {
    HandleTable table;
    int objects[3] = {};
    const void* first = table.add(HandleKind::Art, &objects[0]);
    const void* second = table.add(HandleKind::Entry, &objects[1]);
    CHECK(table.find(HandleKind::Art, first) == &objects[0]);
    CHECK(table.find(HandleKind::Entry, first) == nullptr);
    CHECK(table.find(HandleKind::Entry, HandleTable::withKind(first, HandleKind::Entry)) ==
          nullptr);
    table.remove(first);
    CHECK(table.find(HandleKind::Art, first) == nullptr);
    const void* third = table.add(HandleKind::Art, &objects[2]); // in the slot of the first
    CHECK(third != first);
    CHECK(table.find(HandleKind::Art, first) == nullptr);
    CHECK(table.find(HandleKind::Art, third) == &objects[2]);
    CHECK(table.find(HandleKind::Entry, second) == &objects[1]);
    CHECK(table.used() == 2);
    CHECK(table.find(HandleKind::Art, nullptr) == nullptr);
}

/// Handles that lead nowhere: none, invented ones, one of another kind, and a dead one.
template <typename Handle> std::vector<Handle> worthless(const Drawing& drawing) {
    const AIArtHandle dead = drawing.make(kPathArt);
    CHECK(art().DisposeArt(dead) == kNoErr);
    const void* document = drawing.document.handle();
    const auto as = [](const void* handle) {
        return static_cast<Handle>(const_cast<void*>(handle));
    };
    return {nullptr,
            as(reinterpret_cast<void*>(std::uintptr_t{1})),
            as(reinterpret_cast<void*>(~std::uintptr_t{0})),
            as(document),
            as(dead),
            as(drawing.document.root().handle())};
}

TEST_CASE("no art function takes a handle that is no live art") {
    Drawing drawing;
    const AIArtHandle good = drawing.makePath({{0, 0}, {1, 1}});
    const HostText text("name");
    AIRealMatrix matrix = kIdentityMatrix;
    AIPathSegment segment{};
    for (const AIArtHandle bad : worthless<AIArtHandle>(drawing)) {
        const std::string before = dump(drawing.document);
        AIArtHandle found = good;
        ai::int32 number = 0;
        ai::int16 small = 0;
        AIRealRect rect{};
        AIBoolean flag = 0;
        AIDictionaryRef entries = nullptr;
        std::size_t stamp = 0;
        const AIErr codes[] = {
            art().DisposeArt(bad),
            art().DuplicateArt(bad, kPlaceAbove, good, &found),
            art().DuplicateArt(good, kPlaceBelow, bad, &found),
            art().GetArtUserAttr(bad, kArtLocked, &number),
            art().SetArtUserAttr(bad, kArtLocked, kArtLocked),
            art().GetArtParent(bad, &found),
            art().GetArtFirstChild(bad, &found),
            art().GetArtSibling(bad, &found),
            art().GetArtBounds(bad, &rect),
            art().SetNote(bad, text.string),
            art().GetDictionary(bad, &entries),
            art().TransferAttributes(good, bad, kTransferAll),
            art().TransferAttributes(bad, good, kTransferAll),
            art().GetArtTimeStamp(bad, &stamp),
            path().GetPathSegmentCount(bad, &small),
            path().SetPathSegments(bad, 0, 1, &segment),
            path().SetPathClosed(bad, 1),
            path().GetPathGuide(bad, &flag),
            transform().TransformArt(bad, &matrix, 1, kTransformObjects),
            suite<AIPluginGroupSuite>(kAIPluginGroupSuite, kAIPluginGroupSuiteVersion)
                .GetPluginArtEditArt(bad, &found),
        };
        for (const AIErr code : codes)
            CHECK(code == kBadParameterErr);
        CHECK(dump(drawing.document) == before);
    }
}

TEST_CASE("no layer function takes a handle that is no live layer") {
    Drawing drawing;
    Art& deleted = createLayer(drawing.document, "gone", onTopOf(drawing.document.root()));
    const AILayerHandle gone = layerHandle(&deleted);
    deleteLayer(deleted);
    std::vector<AILayerHandle> handles = worthless<AILayerHandle>(drawing);
    handles.push_back(gone);
    handles.push_back(
        layerHandle(&session().artOf(drawing.make(kGroupArt)))); // a group, but no layer
    for (const AILayerHandle bad : handles) {
        AIBoolean flag = 0;
        AILayerHandle found = nullptr;
        CHECK(layer().GetLayerEditable(bad, &flag) == kBadParameterErr);
        CHECK(layer().GetLayerParent(bad, &found) == kBadParameterErr);
    }
}

} // namespace
} // namespace easel::tests
