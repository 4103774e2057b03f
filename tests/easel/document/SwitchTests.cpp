#include "tests/easel/document/Plugin.h"

namespace easel::tests {
namespace {

// What the host's interface leaves open, each switch tried both ways.

TEST_CASE("a copy is locked and selected as its original, or not at all") {
    for (const bool keeps : {true, false}) {
        const Drawing drawing;
        const AIArtHandle locked = drawing.make(kPathArt);
        const AIArtHandle chosen = drawing.make(kPathArt);
        art().SetArtUserAttr(locked, kArtLocked, kArtLocked);
        art().SetArtUserAttr(chosen, kArtSelected, kArtSelected);
        session().switches.duplicatesKeepLocks = keeps;
        session().switches.duplicatesKeepSelection = keeps;
        AIArtHandle copy = nullptr;
        CHECK(art().DuplicateArt(locked, kPlaceAbove, locked, &copy) == kNoErr);
        CHECK(isAttribute(copy, kArtLocked) == keeps);
        CHECK(art().DuplicateArt(chosen, kPlaceAbove, chosen, &copy) == kNoErr);
        CHECK(isAttribute(copy, kArtFullySelected) == keeps);
    }
}

TEST_CASE("a layer's art has the layer's own group in front, or not") {
    for (const bool has : {true, false}) {
        const Drawing drawing;
        drawing.make(kPathArt);
        session().switches.layerSetHasOwnGroup = has;
        AIArtSet set = nullptr;
        REQUIRE(artSet().NewArtSet(&set) == kNoErr);
        CHECK(artSet().LayerArtSet(layerHandle(&drawing.layerGroup()), set) == kNoErr);
        std::size_t count = 0;
        CHECK(artSet().CountArtSet(set, &count) == kNoErr);
        CHECK(count == (has ? 2 : 1));
        artSet().DisposeArtSet(&set);
    }
}

TEST_CASE("a sublayer's group has its parent's group above it, or nothing") {
    for (const bool has : {true, false}) {
        Drawing drawing;
        session().switches.sublayerGroupHasParent = has;
        Art& inner = createLayer(drawing.document, "Inner", onTopOf(drawing.layerGroup()));
        AIArtHandle parent = nullptr;
        CHECK(art().GetArtParent(inner.handle(), &parent) == kNoErr);
        CHECK(parent == (has ? drawing.layerGroup().handle() : nullptr));
    }
}

TEST_CASE("undo gives stamps back, or fresh ones") {
    for (const bool restores : {true, false}) {
        Drawing drawing;
        session().switches.undoRestoresStamps = restores;
        const AIArtHandle made = drawing.makePath({{0, 0}});
        const std::uint64_t before = subtreeStamp(drawing.layerGroup());
        {
            const Record record(drawing.document);
            CHECK(path().SetPathClosed(made, 1) == kNoErr);
        }
        const std::uint64_t changed = subtreeStamp(drawing.layerGroup());
        drawing.document.undo().undo();
        const std::uint64_t undone = subtreeStamp(drawing.layerGroup());
        CHECK((restores ? undone == before : undone > changed));
        CHECK_FALSE(session().artOf(made).content().closed);
    }
}

TEST_CASE("the stamp of a group covers what it contains, or tells of the group alone") {
    for (const bool covers : {true, false}) {
        const Drawing drawing;
        session().switches.stampsCoverDescendants = covers;
        const AIArtHandle made = drawing.makePath({{0, 0}});
        const auto stampOf = [](AIArtHandle handle) {
            std::size_t stamp = 0;
            REQUIRE(art().GetArtTimeStamp(handle, &stamp) == kNoErr);
            return stamp;
        };
        const AIArtHandle group = drawing.layerGroup().handle();
        const std::size_t before = stampOf(group);
        CHECK(path().SetPathClosed(made, 1) == kNoErr);
        CHECK((stampOf(group) > before) == covers);
        CHECK(stampOf(made) > before);
    }
}

TEST_CASE("what is locked in a group goes along with it, or holds it") {
    for (const bool goesAlong : {true, false}) {
        const Drawing drawing;
        session().switches.lockedMembersGoAlong = goesAlong;
        const AIArtHandle group = drawing.make(kGroupArt);
        const AIArtHandle member = drawing.make(kPathArt, kPlaceInsideOnTop, group);
        art().SetArtUserAttr(member, kArtLocked, kArtLocked);
        const AIErr expected = goesAlong ? kNoErr : kUntouchableArtObjectErr;
        AIRealMatrix matrix{1, 0, 0, 1, 5, 5};
        constexpr ai::int32 kAll = kTransformObjects | kTransformChildren;
        CHECK(transform().TransformArt(group, &matrix, 1, kTransformObjects) == kNoErr);
        CHECK(transform().TransformArt(group, &matrix, 1, kAll) == expected);
        CHECK(art().DisposeArt(group) == expected);
    }
}

TEST_CASE("what is in a group is transformed with it, or stays") {
    for (const bool reaches : {true, false}) {
        const Drawing drawing;
        session().switches.transformReachesMembers = reaches;
        const AIArtHandle group = drawing.make(kGroupArt);
        const AIArtHandle member = drawing.make(kPathArt, kPlaceInsideOnTop, group);
        AIPathSegment segment{{10, 0}, {10, 0}, {10, 0}, 1};
        REQUIRE(path().SetPathSegments(member, 0, 1, &segment) == kNoErr);
        AIRealMatrix matrix{1, 0, 0, 1, 5, 5};
        constexpr ai::int32 kAll = kTransformObjects | kTransformChildren;
        REQUIRE(transform().TransformArt(group, &matrix, 1, kAll) == kNoErr);
        REQUIRE(path().GetPathSegments(member, 0, 1, &segment) == kNoErr);
        CHECK(segment.p.h == (reaches ? 15 : 10));
    }
}

TEST_CASE("locking selected art deselects it, or is refused") {
    for (const bool deselects : {true, false}) {
        const Drawing drawing;
        session().switches.lockingDeselects = deselects;
        const AIArtHandle made = drawing.make(kPathArt);
        art().SetArtUserAttr(made, kArtSelected, kArtSelected);
        CHECK(art().SetArtUserAttr(made, kArtLocked, kArtLocked) ==
              (deselects ? kNoErr : kUntouchableArtObjectErr));
        CHECK(isAttribute(made, kArtSelected) == !deselects);
    }
}

TEST_CASE("a member of a compound path has the style of the whole, or its own") {
    for (const bool shares : {true, false}) {
        const Drawing drawing;
        session().switches.membersShareStyle = shares;
        const AIArtHandle whole = drawing.make(kCompoundPathArt);
        const AIArtHandle member = drawing.make(kPathArt, kPlaceInsideOnTop, whole);
        Art& styled = session().artOf(shares ? whole : member);
        styled.write().style.write().path.stroke.width = 7;
        const AIArtHandle other = drawing.make(kPathArt);
        constexpr ai::uint32 kTransferStyle = 1U << 1;
        REQUIRE(art().TransferAttributes(member, other, kTransferStyle) == kNoErr);
        CHECK(session().artOf(other).style().path.stroke.width == 7);
    }
}

TEST_CASE("disposing of locked art is refused, or happens") {
    for (const bool refuses : {true, false}) {
        const Drawing drawing;
        session().switches.disposeRefusesLocked = refuses;
        const AIArtHandle made = drawing.make(kPathArt);
        art().SetArtUserAttr(made, kArtLocked, kArtLocked);
        CHECK(art().DisposeArt(made) == (refuses ? kUntouchableArtObjectErr : kNoErr));
        CHECK((art().ValidArt(made, 1) != 0) == refuses);
    }
}

TEST_CASE("a hit test that finds nothing gives an object, or null") {
    for (const bool object : {true, false}) {
        const Drawing drawing;
        session().switches.missIsHitObject = object;
        const AIRealPoint point{50, 50};
        AIHitRef ref = nullptr;
        CHECK(hit().HitTest(nullptr, &point, kAllHitRequest, &ref) == kNoErr);
        CHECK((ref != nullptr) == object);
        CHECK(hit().IsHit(ref) == 0);
        hit().Release(ref);
    }
}

TEST_CASE("reading the wrong type has a code of its own, or that of a bad parameter") {
    for (const bool own : {true, false}) {
        const Drawing drawing;
        session().switches.wrongEntryTypeHasOwnCode = own;
        AIDictionaryRef none = nullptr;
        CHECK(entry().ToDict(entry().FromString("text"), &none) ==
              (own ? kWrongEntryType : kBadParameterErr));
    }
}

TEST_CASE("silent records go with the step before them, or by themselves") {
    for (const bool follows : {true, false}) {
        Drawing drawing;
        session().switches.silentFollowsStep = follows;
        const std::string before = dump(drawing.document);
        std::string step;
        for (const AIUndoContextKind kind : {kStandardUndoContext, kSilentUndoContext}) {
            const Record record(drawing.document);
            drawing.make(kPathArt);
            drawing.document.undo().setKind(kind);
            if (kind == kStandardUndoContext) step = dump(drawing.document);
        }
        const std::string all = dump(drawing.document);
        drawing.document.undo().undo();
        CHECK(dump(drawing.document) == (follows ? before : step));
        drawing.document.undo().redo();
        CHECK(dump(drawing.document) == all);
    }
}

TEST_CASE("the size of a set is written in 64 bits, or in the low half only") {
    for (const bool wide : {true, false}) {
        const Drawing drawing;
        session().switches.countIs64Bits = wide;
        AIArtSet set = nullptr;
        REQUIRE(artSet().NewArtSet(&set) == kNoErr);
        std::size_t count = ~std::size_t{0};
        CHECK(artSet().CountArtSet(set, &count) == kNoErr);
        CHECK(count == (wide ? 0 : ~std::size_t{0} << 32));
        artSet().DisposeArtSet(&set);
    }
}

TEST_CASE("selecting locked art is an error, or nothing") {
    for (const bool fails : {true, false}) {
        const Drawing drawing;
        session().switches.selectingLockedFails = fails;
        const AIArtHandle made = drawing.makePath({{0, 0}});
        art().SetArtUserAttr(made, kArtLocked, kArtLocked);
        const AIErr expected = fails ? kUntouchableArtObjectErr : kNoErr;
        CHECK(art().SetArtUserAttr(made, kArtSelected, kArtSelected) == expected);
        CHECK(path().SetPathSegmentSelected(made, 0, kSegmentPointSelected) == expected);
        CHECK_FALSE(isAttribute(made, kArtSelected));
    }
}

TEST_CASE("the dictionary's later functions stand where they are told, or two slots earlier") {
    const Drawing drawing;
    const AIDictionarySuite usual = dictionary();
    session().switches.dictionaryHasPointerSlots = false;
    installDictionarySuite(server());
    const AIDictionarySuite shifted = dictionary();
    session().switches.dictionaryHasPointerSlots = true;
    installDictionarySuite(server());
    const auto address = [](auto function) { return reinterpret_cast<std::uintptr_t>(function); };
    CHECK(address(shifted.GetPointerEntry) == address(usual.GetRealEntry));
    CHECK(address(shifted.GetStringEntry) == address(usual.GetBinaryEntry));
    CHECK(address(shifted.SetIntegerEntry) == address(usual.SetIntegerEntry));
    CHECK(address(dictionary().GetPointerEntry) == address(usual.GetPointerEntry));
}

TEST_CASE("strings of entries last until the message ends, or until the next call") {
    for (const bool last : {true, false}) {
        const Drawing drawing;
        session().switches.entryStringsLast = last;
        AIDictionaryRef own = nullptr;
        REQUIRE(dictionary().CreateDictionary(&own) == kNoErr);
        const AIDictKey key = dictionary().Key("k");
        CHECK(dictionary().Set(own, key, entry().FromString("text")) == kNoErr);
        const char* text = nullptr;
        CHECK(entry().ToString(dictionary().Get(own, key), &text) == kNoErr);
        CHECK(std::string(text) == "text");
        dictionary().DeleteEntry(own, key);
        CHECK(std::string(text) == (last ? "text" : "????"));
        dictionary().Release(own);
    }
}

} // namespace
} // namespace easel::tests
