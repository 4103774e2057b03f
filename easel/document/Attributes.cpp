#include "easel/document/Attributes.h"

#include "easel/document/Document.h"
#include "easel/document/Session.h"
#include "host/Error.h"

#include <algorithm>

namespace easel {
namespace {

constexpr ai::int32 kSelection = kArtSelected | kArtFullySelected;
constexpr ai::int32 kLocks = kArtLocked | kArtHidden;
/// Attributes that an object keeps as they are set.
constexpr ai::int32 kStored = kArtLocked | kArtHidden | kArtExpanded | kArtTargeted |
                              kArtIsClipMask | kArtIsTextWrap | kArtStyleIsDirty;
/// State of the list of layers rather than of the art: changing it needs no unlocking.
constexpr ai::int32 kFree = kLocks | kArtExpanded | kArtTargeted;

bool isSet(const ArtContent& content, ai::int32 bits) {
    return (content.attributes & static_cast<std::uint32_t>(bits)) != 0;
}

void assign(ArtContent& content, ai::int32 mask, ai::int32 value) {
    content.attributes = (content.attributes & ~static_cast<std::uint32_t>(mask)) |
                         static_cast<std::uint32_t>(value & mask);
}

/// What a walk over leaves has seen, and may stop early for: some selected and some not.
struct Tally {
    bool selected = false;
    bool unselected = false;

    void add(const Art& leaf) {
        const bool some = isSet(leaf.content(), kSelection);
        const bool all = isSet(leaf.content(), kArtFullySelected);
        selected = selected || some;
        unselected = unselected || !all;
    }
    [[nodiscard]] Selected result() const {
        if (!selected) return Selected::No;
        return unselected ? Selected::Partly : Selected::Fully;
    }
};

/// The art in a container that selecting it means: result groups are only looked at.
const Art* nextSelectable(const Art& art, const Art& root) {
    const Art* following = nextInPreorder(art, root);
    while (following != nullptr && isResultGroup(*following))
        following = nextSkippingChildren(*following, root);
    return following;
}

void setOwnSelection(Art& art, bool selected) {
    const bool alreadySo = isSet(art.content(), kArtFullySelected) == selected &&
                           isSet(art.content(), kArtSelected) == selected;
    if (isContainer(art) || alreadySo) return;
    ArtContent& content = art.write(Edit::Selection);
    assign(content, kSelection, selected ? kSelection : 0);
    content.segmentSelection = {};
}

void refuse(const Art& culprit) {
    throw ai::Error{culprit.isLayer() ? kUntouchableLayerErr : kUntouchableArtObjectErr};
}

bool isLockedOrHidden(const Art& art) { return isSet(art.content(), kLocks); }

ai::int32 computedAttributes(const Art& art, ai::int32 mask) {
    ai::int32 attributes = 0;
    if ((mask & kSelection) != 0) {
        const Selected selected = selectionOf(art);
        if (selected != Selected::No) attributes |= kArtSelected;
        if (selected == Selected::Fully) attributes |= kArtFullySelected;
    }
    const bool inCompound = art.parent() != nullptr && art.parent()->type() == kCompoundPathArt;
    if (inCompound) attributes |= kArtPartOfCompound;
    if (art.type() == kPathArt || art.type() == kCompoundPathArt) attributes |= kArtHasSimpleStyle;
    return attributes;
}

bool mayBeClipMask(const Art& art) {
    const bool kind = art.type() == kPathArt || art.type() == kCompoundPathArt ||
                      art.type() == kTextFrameArt || art.type() == kPluginArt;
    return kind && art.parent() != nullptr && art.parent()->content().clipped;
}

/// Throws unless the bits in `mask` may be set to those in `value`.
void checkSettable(const Art& art, ai::int32 mask, ai::int32 value) {
    if ((mask & ~(kStored | kSelection)) != 0) throw ai::Error{kBadParameterErr};
    if ((value & kArtIsClipMask) != 0 && !mayBeClipMask(art)) throw ai::Error{kBadParameterErr};
    const bool inCompound = art.parent() != nullptr && art.parent()->type() == kCompoundPathArt;
    if ((value & kArtIsTextWrap) != 0 && inCompound) throw ai::Error{kBadParameterErr};
    const bool deselects = art.session().switches.lockingDeselects;
    if (!deselects && (value & kLocks) != 0 && selectionOf(art) != Selected::No) refuse(art);
    const ai::int32 guarded = mask & ~(kFree | kSelection);
    const bool unlocks = (mask & ~value & kLocks) != 0;
    if (guarded != 0 && !unlocks)
        checkEditable(art);
    else if (art.parent() != nullptr && (mask & ~kSelection) != 0)
        checkOpen(*art.parent());
}

/// Attributes that stay as they are make no edit.
void store(Art& art, ai::int32 mask, ai::int32 value) {
    const auto former = static_cast<ai::int32>(art.content().attributes) & mask;
    if (former == value) return;
    if ((value & kLocks) != 0) select(art, false); // what is locked or hidden is not selected
    ai::int32 unstamped = kArtExpanded | kArtTargeted;
    if (!art.session().switches.lockingStamps) unstamped |= kArtLocked;
    const bool stamped = ((former ^ value) & ~unstamped) != 0;
    assign(art.write(stamped ? Edit::Art : Edit::Quiet), mask, value);
    if (art.isLayer() && (mask & kLocks) != 0) art.document().note(&DocumentChanges::layerOptions);
}

} // namespace

ai::int32 userAttributes(const Art& art, ai::int32 mask) {
    const auto own = static_cast<ai::int32>(art.content().attributes) & kStored;
    return (own | computedAttributes(art, mask)) & mask;
}

void setUserAttributes(Art& art, ai::int32 mask, ai::int32 value) {
    value &= mask;
    checkSettable(art, mask, value);
    store(art, mask & kStored, value & kStored);
    if ((mask & kSelection) == 0) return;
    const bool selected = (value & kSelection) != 0;
    if (!selected || maySelect(art)) select(art, selected);
}

bool maySelect(const Art& art) {
    const bool may = isEditable(art);
    if (!may && art.session().switches.selectingLockedFails) checkEditable(art);
    return may;
}

void checkEditable(const Art& art) {
    if (isLockedOrHidden(art)) refuse(art);
    if (art.parent() != nullptr) checkOpen(*art.parent());
}

void checkContents(const Art& art) {
    if (art.session().switches.lockedMembersGoAlong) return;
    for (const Art* each = nextInPreorder(art, art); each != nullptr;
         each = nextInPreorder(*each, art))
        if (each->has(kArtLocked)) throw ai::Error{kUntouchableArtObjectErr};
}

void checkOpen(const Art& container) {
    if (container.session().allowAllChanges) return;
    for (const Art* up = &container; up != nullptr; up = up->parent())
        if (isLockedOrHidden(*up)) refuse(*up);
}

bool isEditable(const Art& art) noexcept { return nearestUp(art, isLockedOrHidden) == nullptr; }

bool isVisible(const Art& art) noexcept {
    return nearestUp(art, [](const Art& each) { return each.has(kArtHidden); }) == nullptr;
}

Selected selectionOf(const Art& art) noexcept {
    Tally tally;
    for (const Art* each = &art; each != nullptr; each = nextSelectable(*each, art)) {
        if (!isContainer(*each)) tally.add(*each);
        if (tally.selected && tally.unselected) break;
    }
    return tally.result();
}

void select(Art& art, bool selected) {
    Art* each = &art;
    while (each != nullptr) {
        const bool skip = isResultGroup(*each) || (selected && isLockedOrHidden(*each));
        if (!skip) setOwnSelection(*each, selected);
        each = skip ? nextSkippingChildren(*each, art) : nextInPreorder(*each, art);
    }
}

void deselectAll(Document& document) { select(document.root(), false); }

void selectAll(Document& document) { select(document.root(), true); }

ai::int16 segmentSelection(const Art& path, std::size_t index) noexcept {
    const SegmentSelections& partial = *path.content().segmentSelection;
    if (!partial.empty()) return partial[index];
    return path.has(kArtFullySelected) ? kSegmentPointSelected : kSegmentNotSelected;
}

void setSegmentSelection(Art& path, std::size_t index, ai::int16 selection) {
    ArtContent& content = path.write(Edit::Selection);
    const auto all = static_cast<std::uint8_t>(path.has(kArtFullySelected));
    SegmentSelections& each = content.segmentSelection.write();
    if (each.empty()) each.assign(path.segments().size(), all);
    each[index] = static_cast<std::uint8_t>(selection);
    settleSelection(content);
}

void settleSelection(ArtContent& content) {
    if (content.segmentSelection->empty()) return;
    content.segmentSelection.write().resize(content.segments->size());
    const SegmentSelections& each = *content.segmentSelection;
    const auto isFull = [](std::uint8_t one) { return one == kSegmentPointSelected; };
    const auto isNone = [](std::uint8_t one) { return one == kSegmentNotSelected; };
    const bool none = std::ranges::all_of(each, isNone);
    const bool full = !none && std::ranges::all_of(each, isFull);
    assign(content, kSelection, none ? 0 : full ? kSelection : kArtSelected);
    if (none || full) content.segmentSelection = {};
}

} // namespace easel
