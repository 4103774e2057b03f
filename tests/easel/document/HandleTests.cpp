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

TEST_CASE("no function takes a handle that is no live art, or no live layer") {
    Drawing drawing;
    const AIArtHandle good = drawing.makePath({{0, 0}, {1, 1}});
    AIRealMatrix matrix = kIdentityMatrix;
    AIPathSegment segment{};
    for (const AIArtHandle bad : worthless<AIArtHandle>(drawing)) {
        const std::string before = dump(drawing.document);
        AIArtHandle found = good;
        ai::int16 small = 0;
        AIDictionaryRef entries = nullptr;
        const AIErr codes[] = {
            art().DisposeArt(bad),
            art().DuplicateArt(bad, kPlaceAbove, good, &found),
            art().DuplicateArt(good, kPlaceBelow, bad, &found),
            art().SetArtUserAttr(bad, kArtLocked, kArtLocked),
            art().GetArtParent(bad, &found),
            art().GetDictionary(bad, &entries),
            art().TransferAttributes(good, bad, kTransferAll),
            path().GetPathSegmentCount(bad, &small),
            path().SetPathSegments(bad, 0, 1, &segment),
            transform().TransformArt(bad, &matrix, 1, kTransformObjects),
        };
        for (const AIErr code : codes)
            CHECK(code == kBadParameterErr);
        CHECK(dump(drawing.document) == before);
    }
    Art& deleted = createLayer(drawing.document, "gone", onTopOf(drawing.document.root()));
    std::vector<AILayerHandle> layers = worthless<AILayerHandle>(drawing);
    layers.push_back(layerHandle(&deleted));
    layers.push_back(layerHandle(&session().artOf(drawing.make(kGroupArt)))); // a group, no layer
    deleteLayer(deleted);
    for (const AILayerHandle bad : layers) {
        AIBoolean flag = 0;
        CHECK(layer().GetLayerEditable(bad, &flag) == kBadParameterErr);
    }
}

} // namespace
} // namespace easel::tests
