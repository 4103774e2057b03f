#include "host/suites/AIArtSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/document/Attributes.h"
#include "easel/document/Bounds.h"
#include "easel/document/Layers.h"
#include "easel/document/Placement.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

AIArtHandle handleOf(const Art* art) { return art != nullptr ? art->handle() : nullptr; }

Art* artOrNull(AIArtHandle handle) { return handle != nullptr ? &artOf(handle) : nullptr; }

/// Layers' groups and the parts of plug-in groups stay where they are.
bool isFixed(const Art& art) {
    return art.isLayer() || art.parent() == nullptr || art.parent()->type() == kPluginArt;
}

// Making, removing, moving.

AIErr newArt(ai::int16 type, ai::int16 order, AIArtHandle reference, AIArtHandle* made) {
    required(made) = nullptr;
    const bool canBeMade =
        type == kGroupArt || type == kPathArt || type == kCompoundPathArt || type == kPluginArt;
    if (!canBeMade) return kUnknownArtTypeErr;
    const Position place = placeFor(order, artOrNull(reference));
    checkPlace(place, type);
    *made = createArt(place.parent->document(), type, place).handle();
    return kNoErr;
}

AIErr disposeChecked(AIArtHandle handle, bool refusesLocked) {
    Art& art = artOf(handle);
    if (isFixed(art)) return kUntouchableArtObjectErr;
    if (refusesLocked) checkEditable(art);
    checkContents(art);
    disposeArt(art);
    return kNoErr;
}

AIErr disposeArtObject(AIArtHandle handle) {
    return disposeChecked(handle, switches().disposeRefusesLocked);
}

AIErr uncheckedDisposeArt(AIArtHandle handle) { return disposeChecked(handle, false); }

AIErr reorderArt(AIArtHandle handle, ai::int16 order, AIArtHandle reference) {
    Art& art = artOf(handle);
    if (isFixed(art)) return kUntouchableArtObjectErr;
    const Position place = placeFor(order, artOrNull(reference));
    if (isInside(*place.parent, art)) return kBadParameterErr;
    checkEditable(art);
    checkPlace(place, art);
    moveArt(art, place);
    return kNoErr;
}

AIErr duplicateArtObject(AIArtHandle handle, ai::int16 order, AIArtHandle reference,
                         AIArtHandle* made) {
    required(made) = nullptr;
    const Art& art = artOf(handle);
    if (art.isLayer()) return kUntouchableArtObjectErr;
    const Position place = placeFor(order, artOrNull(reference));
    checkPlace(place, art);
    *made = duplicateArt(art, place).handle();
    return kNoErr;
}

AIErr insertionPointBadForArtType(ai::int16 order, AIArtHandle reference, ai::int16 type) {
    checkPlace(placeFor(order, artOrNull(reference)), type);
    return kNoErr;
}

AIErr preinsertionFlightCheck(AIArtHandle candidate, ai::int16 order, AIArtHandle reference) {
    checkPlace(placeFor(order, artOrNull(reference)), artOf(candidate));
    return kNoErr;
}

// Walking the tree.

AIErr getFirstArtOfLayer(AILayerHandle layer, AIArtHandle* group) {
    required(group) = nullptr;
    const Art* found = layer != nullptr ? &layerOf(layer) : currentDocument().state().currentLayer;
    *group = handleOf(found);
    return kNoErr;
}

AIErr getLayerOfArt(AIArtHandle art, AILayerHandle* layer) {
    required(layer) = nullptr;
    *layer = layerHandle(layerOf(artOf(art)));
    return kNoErr;
}

AIErr getArtType(AIArtHandle art, ai::int16* type) {
    required(type) = artOf(art).type();
    return kNoErr;
}

AIErr getArtParent(AIArtHandle handle, AIArtHandle* parent) {
    required(parent) = nullptr;
    const Art& art = artOf(handle);
    const Art* found = art.parent();
    const bool isTopmost =
        found == &art.document().root() || (art.isLayer() && !switches().sublayerGroupHasParent);
    *parent = isTopmost ? nullptr : handleOf(found);
    return kNoErr;
}

/// Edit and result art are no children of their plug-in group, as far as a plug-in is told.
const Art* tellChild(const Art& parent, const Art* child) {
    return parent.type() == kPluginArt ? nullptr : child;
}

AIErr getArtFirstChild(AIArtHandle art, AIArtHandle* child) {
    required(child) = nullptr;
    *child = handleOf(tellChild(artOf(art), artOf(art).firstChild()));
    return kNoErr;
}

AIErr getArtLastChild(AIArtHandle art, AIArtHandle* child) {
    required(child) = nullptr;
    *child = handleOf(tellChild(artOf(art), artOf(art).lastChild()));
    return kNoErr;
}

bool hasSiblings(const Art& art) {
    return art.parent() != &art.document().root() && art.parent()->type() != kPluginArt;
}

AIErr getArtSibling(AIArtHandle handle, AIArtHandle* sibling) {
    required(sibling) = nullptr;
    const Art& art = artOf(handle);
    *sibling = hasSiblings(art) ? handleOf(art.next()) : nullptr;
    return kNoErr;
}

AIErr getArtPriorSibling(AIArtHandle handle, AIArtHandle* sibling) {
    required(sibling) = nullptr;
    const Art& art = artOf(handle);
    *sibling = hasSiblings(art) ? handleOf(art.previous()) : nullptr;
    return kNoErr;
}

AIBoolean validArt(AIArtHandle art, AIBoolean /*allLists*/) {
    return findArt(art) != nullptr ? 1 : 0;
}

enum ArtOrder : ai::int16 {
    kUnknownOrder = 0,
    kFirstBeforeSecond = 1,
    kSecondBeforeFirst = 2,
    kFirstInsideSecond = 3,
    kSecondInsideFirst = 4,
};

AIErr getArtOrder(AIArtHandle first, AIArtHandle second, ai::int16* order) {
    const Art& a = artOf(first);
    const Art& b = artOf(second);
    required(order) = kUnknownOrder;
    if (&a == &b || &a.document() != &b.document()) return kNoErr;
    if (isInside(a, b))
        *order = kFirstInsideSecond;
    else if (isInside(b, a))
        *order = kSecondInsideFirst;
    else
        *order = isInFrontOf(a, b) ? kFirstBeforeSecond : kSecondBeforeFirst;
    return kNoErr;
}

AIErr getInsertionPoint(AIArtHandle* art, ai::int16* order, AIBoolean* editable) {
    const InsertionPoint point = insertionPoint(currentDocument());
    required(art) = handleOf(point.art);
    required(order) = point.order;
    if (editable != nullptr) *editable = isEditable(*point.art) ? 1 : 0;
    return kNoErr;
}

AIErr setInsertionPointAt(AIArtHandle art) {
    setInsertionPoint(artOf(art));
    return kNoErr;
}

constexpr ai::int32 kNormalDrawing = 0;

AIErr getDrawingMode(ai::int32* mode) {
    required(mode) = kNormalDrawing;
    return kNoErr;
}

AIErr getInsertionPointForMode(ai::int32 mode, AIArtHandle* art, ai::int16* order,
                               AIBoolean* editable) {
    return mode == kNormalDrawing ? getInsertionPoint(art, order, editable) : kNotImplementedErr;
}

// Attributes.

AIErr getArtUserAttr(AIArtHandle art, ai::int32 mask, ai::int32* attributes) {
    required(attributes) = userAttributes(artOf(art), mask);
    return kNoErr;
}

AIErr setArtUserAttr(AIArtHandle art, ai::int32 mask, ai::int32 attributes) {
    setUserAttributes(artOf(art), mask, attributes);
    return kNoErr;
}

AIErr getCenterVisible(AIArtHandle art, AIBoolean* visible) {
    required(visible) = artOf(art).content().centerVisible ? 1 : 0;
    return kNoErr;
}

AIErr setCenterVisible(AIArtHandle handle, AIBoolean visible) {
    Art& art = artOf(handle);
    checkEditable(art);
    art.write(Edit::Quiet).centerVisible = visible != 0;
    return kNoErr;
}

template <typename Painted> AIBoolean anyPath(AIArtHandle handle, Painted painted) {
    const Art& art = artOf(handle);
    for (const Art* each = &art; each != nullptr; each = nextInPreorder(*each, art))
        if (each->type() == kPathArt && painted(styleCarrier(*each).style().path)) return 1;
    return 0;
}

AIBoolean artHasFill(AIArtHandle art) {
    return anyPath(art, [](const AIPathStyle& style) { return style.fillPaint != 0; });
}

AIBoolean artHasStroke(AIArtHandle art) {
    return anyPath(art, [](const AIPathStyle& style) { return style.strokePaint != 0; });
}

AIBoolean isArtStyledArt(AIArtHandle art) {
    static_cast<void>(artOf(art));
    return 0;
}

AIBoolean isArtClipping(AIArtHandle art) { return artOf(art).has(kArtIsClipMask) ? 1 : 0; }

AIErr isArtLayerGroup(AIArtHandle art, AIBoolean* isLayer) {
    required(isLayer) = artOf(art).isLayer() ? 1 : 0;
    return kNoErr;
}

AIErr artIsGraph(AIArtHandle art, AIBoolean* isGraph) {
    static_cast<void>(artOf(art));
    required(isGraph) = 0;
    return kNoErr;
}

enum TransferredAttributes : ai::uint32 {
    kTransferName = 1U << 0,
    kTransferStyle = 1U << 1,
    kTransferTextWrap = 1U << 3,
    kTransferLocked = 1U << 7,
    kTransferHidden = 1U << 8,
};

void transferStyle(const Art& source, Art& destination) {
    const Cow<ArtStyle>& style = styleCarrier(source).content().style;
    Art& carrier = styleCarrier(destination);
    if (!style.sharesWith(carrier.content().style)) carrier.write().style = style;
}

void transferName(const Art& source, Art& destination) {
    if (source.details().name != destination.details().name)
        destination.write(Edit::Quiet).details.write().name = source.details().name;
    if (!source.content().id->empty()) destination.write(Edit::Quiet).id = source.content().id;
}

AIErr transferAttributes(AIArtHandle from, AIArtHandle to, ai::uint32 which) {
    const Art& source = artOf(from);
    Art& destination = artOf(to);
    checkEditable(destination);
    if ((which & kTransferName) != 0) transferName(source, destination);
    if ((which & kTransferStyle) != 0) transferStyle(source, destination);
    ai::int32 bits = 0;
    if ((which & kTransferTextWrap) != 0) bits |= kArtIsTextWrap;
    if ((which & kTransferLocked) != 0) bits |= kArtLocked;
    if ((which & kTransferHidden) != 0) bits |= kArtHidden;
    const ai::int32 wanted = userAttributes(source, bits);
    if (wanted != userAttributes(destination, bits)) setUserAttributes(destination, bits, wanted);
    return kNoErr;
}

enum TargetAction : ai::int32 { kReplaceTargets = 1, kAppendTargets = 2, kRemoveTargets = 3 };

AIErr modifyTargetedArtSet(AIArtHandle* list, ai::int32 count, ai::int32 action) {
    if (action < kReplaceTargets || action > kRemoveTargets) return kNotImplementedErr;
    if (count < 0) return kBadParameterErr;
    if (action == kReplaceTargets) {
        Art& root = currentDocument().root();
        for (Art* each = &root; each != nullptr; each = nextInPreorder(*each, root))
            if (each->has(kArtTargeted)) setUserAttributes(*each, kArtTargeted, 0);
    }
    const ai::int32 targeted = action == kRemoveTargets ? 0 : kArtTargeted;
    for (ai::int32 i = 0; i < count; ++i)
        setUserAttributes(artOf(required(list + i)), kArtTargeted, targeted);
    return kNoErr;
}

// Geometry.

AIDoubleRect checkedBounds(AIArtHandle art, const AIRealMatrix* matrix, ai::int32 flags) {
    const bool contradicts = ((flags & kControlBounds) != 0 && matrix != nullptr) ||
                             ((flags & kUserPreviewBounds) != 0 && (flags & kNoStrokeBounds) != 0);
    if (contradicts) throw ai::Error{kBadParameterErr};
    const AIRealMatrix& through = matrix != nullptr ? *matrix : kIdentityMatrix;
    return boundsOf(artOf(art), flags, through).value_or(AIDoubleRect{});
}

AIRealRect rounded(const AIDoubleRect& rect) {
    return {static_cast<AIReal>(rect.left), static_cast<AIReal>(rect.top),
            static_cast<AIReal>(rect.right), static_cast<AIReal>(rect.bottom)};
}

AIErr getArtTransformBounds(AIArtHandle art, AIRealMatrix* matrix, ai::int32 flags,
                            AIRealRect* bounds) {
    required(bounds) = rounded(checkedBounds(art, matrix, flags));
    return kNoErr;
}

AIErr getArtBounds(AIArtHandle art, AIRealRect* bounds) {
    return getArtTransformBounds(art, nullptr, kExcludeGuideBounds, bounds);
}

AIErr getPreciseBounds(AIArtHandle art, AIRealMatrix* matrix, ai::int32 flags,
                       AIDoubleRect* bounds) {
    required(bounds) = checkedBounds(art, matrix, flags);
    return kNoErr;
}

AIErr getArtRotatedBounds(AIArtHandle art, AIReal angle, ai::int32 flags, AIRealRect* bounds) {
    const AIReal cosine = std::cos(angle);
    const AIReal sine = std::sin(angle);
    AIRealMatrix rotation{cosine, sine, -sine, cosine, 0, 0};
    return getArtTransformBounds(art, &rotation, flags, bounds);
}

/// Bounds are never out of date here.
AIErr setArtBounds(AIArtHandle art) {
    static_cast<void>(artOf(art));
    return kNoErr;
}

bool haveEqualPaths(const Art& a, const Art& b) {
    const bool comparable =
        a.type() == b.type() &&
        (a.type() == kPathArt || a.type() == kGroupArt || a.type() == kCompoundPathArt);
    if (!comparable || a.content().closed != b.content().closed) return false;
    const auto samePoint = [](AIRealPoint p, AIRealPoint q) { return p.h == q.h && p.v == q.v; };
    const auto sameSegment = [&](const AIPathSegment& s, const AIPathSegment& t) {
        return samePoint(s.p, t.p) && samePoint(s.in, t.in) && samePoint(s.out, t.out);
    };
    return std::ranges::equal(a.segments(), b.segments(), sameSegment);
}

AIBoolean artsHaveEqualPaths(AIArtHandle first, AIArtHandle second) {
    const Art& a = artOf(first);
    const Art& b = artOf(second);
    const Art* inA = &a;
    const Art* inB = &b;
    while (inA != nullptr && inB != nullptr && haveEqualPaths(*inA, *inB)) {
        inA = nextInPreorder(*inA, a);
        inB = nextInPreorder(*inB, b);
    }
    return inA == nullptr && inB == nullptr ? 1 : 0;
}

// Names, notes, dictionary, time stamp.

AIErr getDictionary(AIArtHandle art, AIDictionaryRef* dictionary) {
    required(dictionary) = nullptr;
    *dictionary = static_cast<AIDictionaryRef>(artOf(art).dictionary().lend());
    return kNoErr;
}

AIErr setArtName(AIArtHandle handle, const ai::UnicodeString& name) {
    Art& art = artOf(handle);
    std::string text = readUtf8(name);
    if (art.isLayer()) {
        changeLayer(art, [&](LayerProperties& layer) { layer.title = std::move(text); });
        return kNoErr;
    }
    checkEditable(art);
    art.write(Edit::Quiet).details.write().name = std::move(text);
    return kNoErr;
}

const char* defaultName(const Art& art) {
    switch (art.type()) {
    case kGroupArt:
        return "<Group>";
    case kPathArt:
        return art.content().guide ? "<Guide>" : "<Path>";
    case kCompoundPathArt:
        return "<Compound Path>";
    case kTextFrameArt:
        return "<Text>";
    case kRasterArt:
        return "<Image>";
    default:
        return "<Object>";
    }
}

AIErr getArtName(AIArtHandle handle, ai::UnicodeString& name, AIBoolean* isDefault) {
    const Art& art = artOf(handle);
    const std::string& own = art.isLayer() ? art.details().layer.title : art.details().name;
    const bool unnamed = own.empty() && !art.isLayer();
    writeUtf8(name, unnamed ? defaultName(art) : std::string_view(own));
    if (isDefault != nullptr) *isDefault = unnamed ? 1 : 0;
    return kNoErr;
}

AIErr setNote(AIArtHandle handle, const ai::UnicodeString& note) {
    Art& art = artOf(handle);
    checkEditable(art);
    art.write(Edit::Quiet).details.write().note = readUtf8(note);
    return kNoErr;
}

AIErr getNote(AIArtHandle art, ai::UnicodeString& note) {
    writeUtf8(note, artOf(art).details().note);
    return kNoErr;
}

AIBoolean hasNote(AIArtHandle art) { return artOf(art).details().note.empty() ? 0 : 1; }

void deleteNote(AIArtHandle handle) {
    Art& art = artOf(handle);
    checkEditable(art);
    art.write(Edit::Quiet).details.write().note.clear();
}

AIErr getArtTimeStamp(AIArtHandle art, std::size_t* stamp) {
    const Art& found = artOf(art);
    required(stamp) = switches().stampsCoverDescendants ? subtreeStamp(found) : found.stamp();
    return kNoErr;
}

AIErr noKeyArt(AIArtHandle* art) {
    required(art) = nullptr;
    return kNoErr;
}

AIErr cancelKeyArt() { return kNoErr; }

AIBoolean isPixelPerfect(AIArtHandle art) {
    static_cast<void>(artOf(art));
    return 0;
}

AIErr isArtALayerInSymbol(AIArtHandle art, AIBoolean* isLayer) {
    static_cast<void>(artOf(art));
    required(isLayer) = 0;
    return kNoErr;
}

} // namespace

void installArtSuite(SuiteServer& server) {
    using S = AIArtSuite;
    auto table = server.table<S>(kAIArtSuite, kAIArtSuiteVersion);
    expose<&S::NewArt, newArt>(table);
    expose<&S::DisposeArt, disposeArtObject>(table);
    expose<&S::ReorderArt, reorderArt>(table);
    expose<&S::DuplicateArt, duplicateArtObject>(table);
    expose<&S::GetFirstArtOfLayer, getFirstArtOfLayer>(table);
    expose<&S::GetLayerOfArt, getLayerOfArt>(table);
    expose<&S::GetArtType, getArtType>(table);
    expose<&S::GetArtUserAttr, getArtUserAttr>(table);
    expose<&S::SetArtUserAttr, setArtUserAttr>(table);
    expose<&S::GetArtParent, getArtParent>(table);
    expose<&S::GetArtFirstChild, getArtFirstChild>(table);
    expose<&S::GetArtSibling, getArtSibling>(table);
    expose<&S::GetArtPriorSibling, getArtPriorSibling>(table);
    expose<&S::GetArtBounds, getArtBounds>(table);
    expose<&S::SetArtBounds, setArtBounds>(table);
    expose<&S::GetArtCenterPointVisible, getCenterVisible>(table);
    expose<&S::SetArtCenterPointVisible, setCenterVisible>(table);
    expose<&S::GetArtTransformBounds, getArtTransformBounds>(table);
    expose<&S::ValidArt, validArt>(table);
    expose<&S::GetArtOrder, getArtOrder>(table);
    expose<&S::GetArtRotatedBounds, getArtRotatedBounds>(table);
    expose<&S::ArtHasFill, artHasFill>(table);
    expose<&S::ArtHasStroke, artHasStroke>(table);
    expose<&S::ArtsHaveEqualPaths, artsHaveEqualPaths>(table);
    expose<&S::GetInsertionPoint, getInsertionPoint>(table);
    expose<&S::SetInsertionPoint, setInsertionPointAt>(table);
    expose<&S::GetKeyArt, noKeyArt>(table);
    expose<&S::CancelKeyArt, cancelKeyArt>(table);
    expose<&S::GetDictionary, getDictionary>(table);
    expose<&S::SetArtName, setArtName>(table);
    expose<&S::GetArtName, getArtName>(table);
    expose<&S::IsArtLayerGroup, isArtLayerGroup>(table);
    expose<&S::ModifyTargetedArtSet, modifyTargetedArtSet>(table);
    expose<&S::IsArtStyledArt, isArtStyledArt>(table);
    expose<&S::IsArtClipping, isArtClipping>(table);
    expose<&S::TransferAttributes, transferAttributes>(table);
    expose<&S::GetArtLastChild, getArtLastChild>(table);
    expose<&S::InsertionPointBadForArtType, insertionPointBadForArtType>(table);
    expose<&S::PreinsertionFlightCheck, preinsertionFlightCheck>(table);
    expose<&S::SetNote, setNote>(table);
    expose<&S::GetNote, getNote>(table);
    expose<&S::HasNote, hasNote>(table);
    expose<&S::DeleteNote, deleteNote>(table);
    expose<&S::GetPreciseArtTransformBounds, getPreciseBounds>(table);
    expose<&S::UncheckedDisposeArt, uncheckedDisposeArt>(table);
    expose<&S::ArtIsGraph, artIsGraph>(table);
    expose<&S::GetDrawingMode, getDrawingMode>(table);
    expose<&S::GetInsertionPointForDrawingMode, getInsertionPointForMode>(table);
    expose<&S::GetInsertionPointForCurrentDrawingMode, getInsertionPoint>(table);
    expose<&S::IsPixelPerfect, isPixelPerfect>(table);
    expose<&S::IsArtALayerInSymbol, isArtALayerInSymbol>(table);
    expose<&S::GetArtTimeStamp, getArtTimeStamp>(table);
}

} // namespace easel
