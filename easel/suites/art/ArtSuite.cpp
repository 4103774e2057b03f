#include "host/suites/AIArtSuite.h"

#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
#include "easel/document/Attributes.h"
#include "easel/document/Bounds.h"
#include "easel/document/Layers.h"
#include "easel/document/Placement.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

AIArtHandle handleOf(const Art* art) { return art != nullptr ? art->handle() : nullptr; }

Art* artOrNull(AIArtHandle handle) {
    return handle != nullptr ? &session().artOf(handle) : nullptr;
}

/// Layers' groups and the parts of plug-in groups stay where they are.
bool isFixed(const Art& art) {
    return art.isLayer() || art.parent() == nullptr || art.parent()->type() == kPluginArt;
}

// Making and removing.

AIArtHandle newArt(ai::int16 type, ai::int16 order, AIArtHandle reference) {
    const bool canBeMade =
        type == kGroupArt || type == kPathArt || type == kCompoundPathArt || type == kPluginArt;
    if (!canBeMade) throw ai::Error{kUnknownArtTypeErr};
    const Position place = placeFor(session().document(), order, artOrNull(reference));
    checkPlace(place, type);
    return createArt(place.parent->document(), type, place).handle();
}

void disposeArtObject(AIArtHandle handle) {
    Art& art = session().artOf(handle);
    if (isFixed(art)) throw ai::Error{kUntouchableArtObjectErr};
    if (session().switches.disposeRefusesLocked) checkEditable(art);
    checkContents(art);
    disposeArt(art);
}

AIArtHandle duplicateArtObject(AIArtHandle handle, ai::int16 order, AIArtHandle reference) {
    const Art& art = session().artOf(handle);
    if (art.isLayer()) throw ai::Error{kUntouchableArtObjectErr};
    const Position place = placeFor(session().document(), order, artOrNull(reference));
    checkPlace(place, art);
    return duplicateArt(art, place).handle();
}

// Walking the tree.

AIArtHandle getFirstArtOfLayer(AILayerHandle layer) {
    const Art* found =
        layer != nullptr ? &session().layerOf(layer) : session().document().state().currentLayer;
    return handleOf(found);
}

AILayerHandle getLayerOfArt(AIArtHandle art) { return layerHandle(layerOf(session().artOf(art))); }

ai::int16 getArtType(AIArtHandle art) { return session().artOf(art).type(); }

AIArtHandle getArtParent(AIArtHandle handle) {
    const Art& art = session().artOf(handle);
    const Art* found = art.parent();
    const bool isTopmost = found == &art.document().root() ||
                           (art.isLayer() && !session().switches.sublayerGroupHasParent);
    return isTopmost ? nullptr : handleOf(found);
}

/// Edit and result art are no children of their plug-in group, as far as a plug-in is told.
const Art* tellChild(const Art& parent, const Art* child) {
    return parent.type() == kPluginArt ? nullptr : child;
}

AIArtHandle getArtFirstChild(AIArtHandle art) {
    return handleOf(tellChild(session().artOf(art), session().artOf(art).firstChild()));
}

bool hasSiblings(const Art& art) {
    return art.parent() != &art.document().root() && art.parent()->type() != kPluginArt;
}

AIArtHandle getArtSibling(AIArtHandle handle) {
    const Art& art = session().artOf(handle);
    return hasSiblings(art) ? handleOf(art.next()) : nullptr;
}

bool validArt(AIArtHandle art, AIBoolean /*allLists*/) { return session().findArt(art) != nullptr; }

void getInsertionPoint(AIArtHandle* art, ai::int16* order, AIBoolean* editable) {
    Art& group = insertionGroup(session().document());
    required(art) = group.handle();
    required(order) = kPlaceInsideOnTop;
    if (editable != nullptr) *editable = isEditable(group) ? 1 : 0;
}

// Attributes.

ai::int32 getArtUserAttr(AIArtHandle art, ai::int32 mask) {
    return userAttributes(session().artOf(art), mask);
}

void setArtUserAttr(AIArtHandle art, ai::int32 mask, ai::int32 attributes) {
    setUserAttributes(session().artOf(art), mask, attributes);
}

bool isArtLayerGroup(AIArtHandle art) { return session().artOf(art).isLayer(); }

enum TransferredAttributes : ai::uint32 {
    kTransferName = 1U << 0,
    kTransferStyle = 1U << 1,
    kTransferTextWrap = 1U << 3,
    kTransferLocked = 1U << 7,
    kTransferHidden = 1U << 8,
};

void transferStyle(Art& source, Art& destination) {
    const Cow<ArtStyle>& style = styleHolder(source).content().style;
    Art& carrier = styleHolder(destination);
    if (!style.sharesWith(carrier.content().style)) carrier.write().style = style;
}

void transferName(const Art& source, Art& destination) {
    if (source.details().name != destination.details().name)
        destination.write(Edit::Quiet).details.write().name = source.details().name;
    if (!source.content().id->empty()) destination.write(Edit::Quiet).id = source.content().id;
}

void transferAttributes(AIArtHandle from, AIArtHandle to, ai::uint32 which) {
    Art& source = session().artOf(from);
    Art& destination = session().artOf(to);
    checkEditable(destination);
    if ((which & kTransferName) != 0) transferName(source, destination);
    if ((which & kTransferStyle) != 0) transferStyle(source, destination);
    ai::int32 bits = 0;
    if ((which & kTransferTextWrap) != 0) bits |= kArtIsTextWrap;
    if ((which & kTransferLocked) != 0) bits |= kArtLocked;
    if ((which & kTransferHidden) != 0) bits |= kArtHidden;
    const ai::int32 wanted = userAttributes(source, bits);
    if (wanted != userAttributes(destination, bits)) setUserAttributes(destination, bits, wanted);
}

// Geometry.

AIDoubleRect checkedBounds(AIArtHandle art, const AIRealMatrix* matrix, ai::int32 flags) {
    const bool contradicts = ((flags & kControlBounds) != 0 && matrix != nullptr) ||
                             ((flags & kUserPreviewBounds) != 0 && (flags & kNoStrokeBounds) != 0);
    if (contradicts) throw ai::Error{kBadParameterErr};
    const AIRealMatrix& through = matrix != nullptr ? *matrix : kIdentityMatrix;
    return boundsOf(session().artOf(art), flags, through).value_or(AIDoubleRect{});
}

AIRealRect rounded(const AIDoubleRect& rect) {
    return {static_cast<AIReal>(rect.left), static_cast<AIReal>(rect.top),
            static_cast<AIReal>(rect.right), static_cast<AIReal>(rect.bottom)};
}

AIRealRect getArtTransformBounds(AIArtHandle art, AIRealMatrix* matrix, ai::int32 flags) {
    return rounded(checkedBounds(art, matrix, flags));
}

AIRealRect getArtBounds(AIArtHandle art) {
    return getArtTransformBounds(art, nullptr, kExcludeGuideBounds);
}

// Notes, dictionary, time stamp.

AIDictionaryRef getDictionary(AIArtHandle art) {
    return static_cast<AIDictionaryRef>(session().artOf(art).dictionary().lend(session()));
}

void setNote(AIArtHandle handle, const ai::UnicodeString& note) {
    Art& art = session().artOf(handle);
    checkEditable(art);
    art.write(Edit::Quiet).details.write().note = readUtf8(session().ledger, note);
}

void getNote(AIArtHandle art, ai::UnicodeString& note) {
    writeUtf8(session().ledger, note, session().artOf(art).details().note);
}

bool hasNote(AIArtHandle art) { return !session().artOf(art).details().note.empty(); }

std::size_t getArtTimeStamp(AIArtHandle art) {
    const Art& found = session().artOf(art);
    return session().switches.stampsCoverDescendants ? subtreeStamp(found) : found.stamp();
}

} // namespace

void installArtSuite(SuiteServer& server) {
    using S = AIArtSuite;
    expose<&S::NewArt, newArt>(server);
    expose<&S::DisposeArt, disposeArtObject>(server);
    expose<&S::DuplicateArt, duplicateArtObject>(server);
    expose<&S::GetFirstArtOfLayer, getFirstArtOfLayer>(server);
    expose<&S::GetLayerOfArt, getLayerOfArt>(server);
    expose<&S::GetArtType, getArtType>(server);
    expose<&S::GetArtUserAttr, getArtUserAttr>(server);
    expose<&S::SetArtUserAttr, setArtUserAttr>(server);
    expose<&S::GetArtParent, getArtParent>(server);
    expose<&S::GetArtFirstChild, getArtFirstChild>(server);
    expose<&S::GetArtSibling, getArtSibling>(server);
    expose<&S::GetArtBounds, getArtBounds>(server);
    expose<&S::GetArtTransformBounds, getArtTransformBounds>(server);
    expose<&S::ValidArt, validArt>(server);
    expose<&S::GetInsertionPoint, getInsertionPoint>(server);
    expose<&S::GetDictionary, getDictionary>(server);
    expose<&S::IsArtLayerGroup, isArtLayerGroup>(server);
    expose<&S::TransferAttributes, transferAttributes>(server);
    expose<&S::SetNote, setNote>(server);
    expose<&S::GetNote, getNote>(server);
    expose<&S::HasNote, hasNote>(server);
    expose<&S::GetArtTimeStamp, getArtTimeStamp>(server);
}

} // namespace easel
