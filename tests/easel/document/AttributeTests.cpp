#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

TEST_CASE("a container is selected as its descendants are") {
    const Drawing drawing;
    const AIArtHandle group = drawing.make(kGroupArt);
    const AIArtHandle a = drawing.make(kPathArt, kPlaceInsideOnTop, group);
    const AIArtHandle b = drawing.make(kPathArt, kPlaceInsideOnTop, group);
    CHECK_FALSE(isAttribute(group, kArtSelected));
    CHECK(art().SetArtUserAttr(a, kArtSelected, kArtSelected) == kNoErr);
    CHECK(isAttribute(group, kArtSelected));
    CHECK_FALSE(isAttribute(group, kArtFullySelected));
    CHECK(art().SetArtUserAttr(group, kArtFullySelected, kArtFullySelected) == kNoErr);
    CHECK(isAttribute(b, kArtFullySelected));
    CHECK(isAttribute(group, kArtFullySelected));
    // Locking deselects; a group is then selected except for its locked members.
    CHECK(art().SetArtUserAttr(a, kArtLocked, kArtLocked) == kNoErr);
    CHECK_FALSE(isAttribute(a, kArtSelected));
    CHECK_FALSE(isAttribute(group, kArtFullySelected));
}

TEST_CASE("what is locked or hidden, or lies in what is, refuses to be changed") {
    struct Row {
        const char* what;
        ai::int32 attribute;
        bool onLayer;
        AIErr code;
    };
    const Row rows[] = {
        {"locked group", kArtLocked, false, kUntouchableArtObjectErr},
        {"hidden group", kArtHidden, false, kUntouchableArtObjectErr},
        {"locked layer", kArtLocked, true, kUntouchableLayerErr},
        {"hidden layer", kArtHidden, true, kUntouchableLayerErr},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const Drawing drawing;
        const AIArtHandle group = drawing.make(kGroupArt);
        const AIArtHandle child = drawing.makePath({{0, 0}, {1, 1}});
        drawing.moveInto(group, child);
        const AIArtHandle culprit = row.onLayer ? drawing.layerGroup().handle() : group;
        REQUIRE(art().SetArtUserAttr(culprit, row.attribute, row.attribute) == kNoErr);
        const std::string before = dump(drawing.document);

        AIRealMatrix matrix{2, 0, 0, 2, 0, 0};
        AIArtHandle made = nullptr;
        CHECK(art().DisposeArt(child) == row.code);
        CHECK(transform().TransformArt(child, &matrix, 1, kTransformObjects) == row.code);
        CHECK(path().SetPathClosed(child, 1) == row.code);
        CHECK(art().NewArt(kPathArt, kPlaceInsideOnTop, group, &made) == row.code);
        CHECK(art().SetArtUserAttr(child, kArtSelected, kArtSelected) == row.code);
        CHECK(art().SetArtUserAttr(child, kArtLocked, kArtLocked) == row.code);
        CHECK(dump(drawing.document) == before);

        session().allowAllChanges = true; // overlooks the parents
        CHECK(path().SetPathClosed(child, 1) == kNoErr);
        CHECK(art().SetArtUserAttr(child, kArtLocked, kArtLocked) == kNoErr);
        CHECK(path().SetPathClosed(child, 0) == kUntouchableArtObjectErr); // but not itself
    }
}

TEST_CASE("time stamps tell edits of art and leave dictionaries and selection out") {
    const Drawing drawing;
    const AIArtHandle made = drawing.makePath({{0, 0}, {1, 1}});
    const AIArtHandle group = drawing.layerGroup().handle();
    const auto stampOf = [](AIArtHandle handle) {
        std::size_t stamp = 0;
        CHECK(art().GetArtTimeStamp(handle, &stamp) == kNoErr);
        return stamp;
    };
    struct Row {
        const char* what;
        void (*change)(AIArtHandle);
        bool counts;
    };
    const Row rows[] = {
        {"a dictionary entry",
         [](AIArtHandle handle) { session().artOf(handle).dictionary().set(internKey("ts"), 1); },
         false},
        {"selecting",
         [](AIArtHandle handle) { art().SetArtUserAttr(handle, kArtSelected, kArtSelected); },
         false},
        {"geometry", [](AIArtHandle handle) { path().SetPathClosed(handle, 1); }, true},
        {"nothing new", [](AIArtHandle handle) { path().SetPathClosed(handle, 1); }, false},
        {"locking",
         [](AIArtHandle handle) { art().SetArtUserAttr(handle, kArtLocked, kArtLocked); }, true},
        {"unlocking", [](AIArtHandle handle) { art().SetArtUserAttr(handle, kArtLocked, 0); },
         true},
        {"deleting", [](AIArtHandle handle) { art().DisposeArt(handle); }, true},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const std::size_t before = stampOf(group);
        row.change(made);
        CHECK((stampOf(group) > before) == row.counts);
    }
}

TEST_CASE("hiding a layer stamps its group but not what is on it") {
    const Drawing drawing;
    const AIArtHandle made = drawing.make(kPathArt);
    const std::uint64_t own = session().artOf(made).stamp();
    const std::uint64_t group = drawing.layerGroup().stamp();
    AILayerHandle handle = layerHandle(&drawing.layerGroup());
    setUserAttributes(drawing.layerGroup(), kArtHidden, kArtHidden);
    CHECK(session().artOf(made).stamp() == own);
    CHECK(drawing.layerGroup().stamp() > group);
    AIBoolean visible = 1;
    CHECK(layer().GetLayerVisible(handle, &visible) == kNoErr);
    CHECK(visible == 0);
}

TEST_CASE("transferring everything leaves geometry, flags, selection and entries alone") {
    const Drawing drawing;
    const AIArtHandle source = drawing.makePath({{0, 0}, {9, 9}});
    const AIArtHandle target = drawing.makePath({{5, 5}});
    session().artOf(source).write().style.write().path.stroke.color = rgbColor(1, 0, 0);
    CHECK(path().SetPathClosed(source, 1) == kNoErr);
    drawing.name(source, "petal");
    session().artOf(source).dictionary().set(internKey("tag"), 1);
    CHECK(art().SetArtUserAttr(source, kArtLocked, kArtLocked) == kNoErr);
    CHECK(art().TransferAttributes(source, target, kTransferAll) == kNoErr);

    CHECK(session().artOf(target).style().path.stroke.color.c.rgb.red == 1);
    CHECK(session().artOf(target).details().name == "petal");
    CHECK(isAttribute(target, kArtLocked));
    CHECK(session().artOf(target).segments().size() == 1);
    CHECK_FALSE(session().artOf(target).content().closed);
    CHECK(session().artOf(target).dictionaryIfAny() == nullptr);
}

} // namespace
} // namespace easel::tests
