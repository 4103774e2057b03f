#include "tests/easel/document/Plugin.h"

#include <algorithm>

namespace easel::tests {
namespace {

constexpr ai::int32 kWithMembers = kTransformObjects | kTransformChildren;

/// Moves a group that has `member` in it by 5 to the right.
AIErr moveGroupOf(AIArtHandle member) {
    AIRealMatrix matrix{1, 0, 0, 1, 5, 5};
    return transform().TransformArt(session().artOf(member).parent()->handle(), &matrix, 1,
                                    kWithMembers);
}

AIErr setAttribute(AIArtHandle made, ai::int32 attribute) {
    return art().SetArtUserAttr(made, attribute, attribute);
}

AIArtHandle pathWith(const Drawing& drawing, ai::int32 attribute) {
    const AIArtHandle made = drawing.makePath({{0, 0}});
    CHECK(setAttribute(made, attribute) == kNoErr);
    return made;
}

AIArtHandle copyOf(AIArtHandle made) {
    AIArtHandle copy = nullptr;
    CHECK(art().DuplicateArt(made, kPlaceAbove, made, &copy) == kNoErr);
    return copy;
}

/// A group on the layer with a path of one point at 10, 0 in it, which is returned.
AIArtHandle memberOfGroup(const Drawing& drawing) {
    const AIArtHandle group = drawing.make(kGroupArt);
    const AIArtHandle member = drawing.makePath({{10, 0}});
    drawing.moveInto(group, member);
    return member;
}

/// What the host's interface leaves open: each switch is tried in both positions.
struct Row {
    bool Switches::*value;
    void (*check)(Drawing& drawing, bool on);
};

const Row kRows[] = {
    {&Switches::duplicatesKeepLocks,
     [](Drawing& drawing, bool keeps) {
         CHECK(isAttribute(copyOf(pathWith(drawing, kArtLocked)), kArtLocked) == keeps);
     }},
    {&Switches::duplicatesKeepSelection,
     [](Drawing& drawing, bool keeps) {
         CHECK(isAttribute(copyOf(pathWith(drawing, kArtSelected)), kArtSelected) == keeps);
     }},
    {&Switches::layerSetHasOwnGroup,
     [](Drawing& drawing, bool has) {
         drawing.make(kPathArt);
         AIArtSet set = nullptr;
         REQUIRE(artSet().NewArtSet(&set) == kNoErr);
         CHECK(artSet().LayerArtSet(layerHandle(&drawing.layerGroup()), set) == kNoErr);
         std::size_t count = 0;
         CHECK(artSet().CountArtSet(set, &count) == kNoErr);
         CHECK(count == (has ? 2 : 1));
         artSet().DisposeArtSet(&set);
     }},
    {&Switches::sublayerGroupHasParent,
     [](Drawing& drawing, bool has) {
         const Art& inner = createLayer(drawing.document, "Inner", onTopOf(drawing.layerGroup()));
         AIArtHandle parent = nullptr;
         CHECK(art().GetArtParent(inner.handle(), &parent) == kNoErr);
         CHECK(parent == (has ? drawing.layerGroup().handle() : nullptr));
     }},
    {&Switches::undoRestoresStamps,
     [](Drawing& drawing, bool restores) {
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
     }},
    {&Switches::stampsCoverDescendants,
     [](Drawing& drawing, bool covers) {
         const AIArtHandle made = drawing.makePath({{0, 0}});
         std::size_t before = 0;
         std::size_t after = 0;
         CHECK(art().GetArtTimeStamp(drawing.layerGroup().handle(), &before) == kNoErr);
         CHECK(path().SetPathClosed(made, 1) == kNoErr);
         CHECK(art().GetArtTimeStamp(drawing.layerGroup().handle(), &after) == kNoErr);
         CHECK((after > before) == covers);
     }},
    {&Switches::lockedMembersGoAlong,
     [](Drawing& drawing, bool goAlong) {
         const AIArtHandle member = memberOfGroup(drawing);
         setAttribute(member, kArtLocked);
         const AIErr expected = goAlong ? kNoErr : kUntouchableArtObjectErr;
         CHECK(moveGroupOf(member) == expected);
         CHECK(art().DisposeArt(session().artOf(member).parent()->handle()) == expected);
     }},
    {&Switches::transformReachesMembers,
     [](Drawing& drawing, bool reaches) {
         const AIArtHandle member = memberOfGroup(drawing);
         CHECK(moveGroupOf(member) == kNoErr);
         CHECK(session().artOf(member).segments()[0].p.h == (reaches ? 15 : 10));
     }},
    {&Switches::lockingDeselects,
     [](Drawing& drawing, bool deselects) {
         const AIArtHandle made = pathWith(drawing, kArtSelected);
         CHECK(setAttribute(made, kArtLocked) == (deselects ? kNoErr : kUntouchableArtObjectErr));
         CHECK(isAttribute(made, kArtSelected) == !deselects);
     }},
    {&Switches::membersShareStyle,
     [](Drawing& drawing, bool share) {
         const AIArtHandle whole = drawing.make(kCompoundPathArt);
         const AIArtHandle member = drawing.make(kPathArt, kPlaceInsideOnTop, whole);
         Art& styled = session().artOf(share ? whole : member);
         styled.write().style.write().path.stroke.width = 7;
         const AIArtHandle other = drawing.make(kPathArt);
         constexpr ai::uint32 kTransferStyle = 1U << 1;
         REQUIRE(art().TransferAttributes(member, other, kTransferStyle) == kNoErr);
         CHECK(session().artOf(other).style().path.stroke.width == 7);
     }},
    {&Switches::disposeRefusesLocked,
     [](Drawing& drawing, bool refuses) {
         const AIArtHandle made = pathWith(drawing, kArtLocked);
         CHECK(art().DisposeArt(made) == (refuses ? kUntouchableArtObjectErr : kNoErr));
         CHECK((art().ValidArt(made, 1) != 0) == refuses);
     }},
    {&Switches::missIsHitObject,
     [](Drawing&, bool object) {
         const AIRealPoint point{50, 50};
         AIHitRef ref = nullptr;
         CHECK(hit().HitTest(nullptr, &point, kAllHitRequest, &ref) == kNoErr);
         CHECK((ref != nullptr) == object);
         CHECK(hit().IsHit(ref) == 0);
         hit().Release(ref);
     }},
    {&Switches::wrongEntryTypeHasOwnCode,
     [](Drawing&, bool own) {
         AIDictionaryRef none = nullptr;
         CHECK(entry().ToDict(entry().FromString("text"), &none) ==
               (own ? kWrongEntryType : kBadParameterErr));
     }},
    {&Switches::silentFollowsStep,
     [](Drawing& drawing, bool follows) {
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
     }},
    {&Switches::countIs64Bits,
     [](Drawing&, bool wide) {
         AIArtSet set = nullptr;
         REQUIRE(artSet().NewArtSet(&set) == kNoErr);
         std::size_t count = ~std::size_t{0};
         CHECK(artSet().CountArtSet(set, &count) == kNoErr);
         CHECK(count == (wide ? 0 : ~std::size_t{0} << 32));
         artSet().DisposeArtSet(&set);
     }},
    {&Switches::selectingLockedFails,
     [](Drawing& drawing, bool fails) {
         const AIArtHandle made = pathWith(drawing, kArtLocked);
         const AIErr expected = fails ? kUntouchableArtObjectErr : kNoErr;
         CHECK(setAttribute(made, kArtSelected) == expected);
         CHECK(path().SetPathSegmentSelected(made, 0, kSegmentPointSelected) == expected);
         CHECK_FALSE(isAttribute(made, kArtSelected));
     }},
    {&Switches::entryStringsLast,
     [](Drawing&, bool last) {
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
     }},
};

TEST_CASE("each switch changes what it says") {
    for (const auto& [value, check] : kRows) {
        const auto named = std::ranges::find(switchNames(), value, &SwitchName::value);
        for (const bool on : {true, false}) {
            INFO(std::string(named->name) << ": " << on);
            Drawing drawing;
            session().switches.*value = on;
            check(drawing, on);
        }
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
}

} // namespace
} // namespace easel::tests
