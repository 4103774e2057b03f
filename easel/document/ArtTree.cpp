#include "easel/document/ArtTree.h"

#include "easel/document/Session.h"

#include <algorithm>
#include <cassert>
#include <memory>
#include <utility>

namespace easel {

/// The only one to make, link and free objects.
class ArtTreeAccess {
public:
    static Art& make(Document& document, ai::int16 type) {
        std::unique_ptr<Art, void (*)(Art*)> art{new Art(document, type),
                                                 [](Art* made) { delete made; }};
        document.undo().noteMade(*art);
        return *art.release();
    }

    static void link(Art& art, Position position) {
        const auto [parent, behind] = position;
        assert(behind == nullptr || behind->parent() == parent);
        Art* inFront = behind != nullptr ? behind->previous() : parent->lastChild();
        UndoLog& undo = art.document().undo();
        undo.keepLinks(art);
        undo.keepLinks(*parent);
        if (behind != nullptr) undo.keepLinks(*behind);
        if (inFront != nullptr) undo.keepLinks(*inFront);
        art.links_.parent = parent;
        art.links_.next = behind;
        art.links_.previous = inFront;
        (inFront != nullptr ? inFront->links_.next : parent->links_.firstChild) = &art;
        (behind != nullptr ? behind->links_.previous : parent->links_.lastChild) = &art;
        parent->touch();
    }

    static void unlink(Art& art) {
        auto& [parent, firstChild, lastChild, next, previous] = art.links_;
        UndoLog& undo = art.document().undo();
        undo.keepLinks(art);
        undo.keepLinks(*parent);
        if (next != nullptr) undo.keepLinks(*next);
        if (previous != nullptr) undo.keepLinks(*previous);
        (previous != nullptr ? previous->links_.next : parent->links_.firstChild) = next;
        (next != nullptr ? next->links_.previous : parent->links_.lastChild) = previous;
        parent->touch();
        parent = next = previous = nullptr;
    }

    /// A copy of one object without its children and place.
    static Art& copy(const Art& art) {
        Art& made = make(art.document(), art.type());
        made.content_ = art.content_;
        const Dictionary* entries = art.dictionaryIfAny();
        if (entries != nullptr && !entries->items().empty()) made.dictionary().copyFrom(*entries);
        clearWhatCopiesDrop(made.content_, art.session().switches);
        return made;
    }

    static void free(Art& art) { delete &art; }

private:
    static void clearWhatCopiesDrop(ArtContent& content, const Switches& switches) {
        constexpr auto kLocks = static_cast<std::uint32_t>(kArtLocked | kArtHidden);
        constexpr auto kSelection = static_cast<std::uint32_t>(kArtSelected | kArtFullySelected);
        if (!switches.duplicatesKeepLocks) content.attributes &= ~kLocks;
        if (!switches.duplicatesKeepSelection) {
            content.attributes &= ~kSelection;
            content.segmentSelection = {};
        }
        content.id = {};
    }
};

Art& makeRoot(Document& document) { return ArtTreeAccess::make(document, kGroupArt); }

void freeTree(Art& root) {
    std::vector<Art*> all;
    for (Art* each = &root; each != nullptr; each = nextInPreorder(*each, root))
        all.push_back(each);
    for (Art* each : all)
        ArtTreeAccess::free(*each);
}

Art& createArt(Document& document, ai::int16 type, Position position) {
    Art& art = ArtTreeAccess::make(document, type);
    if (type == kPathArt || type == kCompoundPathArt)
        art.write().style = document.state().initialStyle;
    ArtTreeAccess::link(art, position);
    if (type == kPluginArt)
        for (int group = 0; group < 2; ++group)
            createArt(document, kGroupArt, atBottomOf(art));
    return art;
}

void disposeArt(Art& art) {
    UndoLog& undo = art.document().undo();
    ArtTreeAccess::unlink(art);
    if (art.firstChild() == nullptr) {
        undo.noteDisposed(art); // may free it
        return;
    }
    std::vector<Art*> going;
    for (Art* each = &art; each != nullptr; each = nextInPreorder(*each, art))
        going.push_back(each);
    for (Art* each : going)
        undo.noteDisposed(*each);
}

void moveArt(Art& art, Position position) {
    assert(!isInside(*position.parent, art));
    if (position.behind == &art) position.behind = art.next();
    ArtTreeAccess::unlink(art);
    ArtTreeAccess::link(art, position);
    if (art.session().switches.movingStamps) art.touch();
}

Art& duplicateArt(const Art& art, Position position) {
    Art& top = ArtTreeAccess::copy(art);
    // The copy may be placed inside the original, so it is linked only when it is complete.
    Art* copied = &top;
    const Art* original = &art;
    while (const Art* following = nextInPreorder(*original, art)) {
        if (following->parent() != original) { // climbs to the sibling's level
            for (const Art* up = original; up->parent() != following->parent(); up = up->parent())
                copied = copied->parent();
            copied = copied->parent();
        }
        Art& made = ArtTreeAccess::copy(*following);
        ArtTreeAccess::link(made, atBottomOf(*copied));
        copied = &made;
        original = following;
    }
    ArtTreeAccess::link(top, position);
    return top;
}

Art* nextInPreorder(const Art& art, const Art& root) noexcept {
    return art.firstChild() != nullptr ? art.firstChild() : nextSkippingChildren(art, root);
}

Art* nextSkippingChildren(const Art& art, const Art& root) noexcept {
    for (const Art* up = &art; up != &root; up = up->parent())
        if (up->next() != nullptr) return up->next();
    return nullptr;
}

bool isInside(const Art& art, const Art& ancestor) noexcept {
    return nearestUp(art, [&](const Art& each) { return &each == &ancestor; }) != nullptr;
}

const Art& styleCarrier(const Art& art) noexcept {
    const Art* carrier = &art;
    for (const Art* up = art.parent(); up != nullptr; up = up->parent())
        if (up->type() == kCompoundPathArt) carrier = up;
    return *carrier;
}

Art& styleCarrier(Art& art) noexcept { return const_cast<Art&>(styleCarrier(std::as_const(art))); }

Art& styleHolder(Art& art) noexcept {
    return art.session().switches.membersShareStyle ? styleCarrier(art) : art;
}

bool isContainer(const Art& art) noexcept {
    return art.type() == kGroupArt || art.type() == kCompoundPathArt || art.type() == kPluginArt;
}

Art* editArt(const Art& art) noexcept {
    return art.type() == kPluginArt ? art.firstChild() : nullptr;
}

Art* resultArt(const Art& art) noexcept {
    return art.type() == kPluginArt ? art.lastChild() : nullptr;
}

const Art* lastShown(const Art& group) noexcept {
    if (group.type() != kPluginArt) return group.lastChild();
    const Art* const result = resultArt(group)->lastChild();
    return result != nullptr ? result : editArt(group)->lastChild();
}

bool isResultGroup(const Art& art) noexcept {
    return art.parent() != nullptr && resultArt(*art.parent()) == &art;
}

Art* layerOf(const Art& art) noexcept {
    const Art* const layer = nearestUp(art, [](const Art& each) { return each.isLayer(); });
    return const_cast<Art*>(layer); // the tree is not const where its objects are
}

std::uint64_t subtreeStamp(const Art& art) {
    if (art.firstChild() == nullptr) return art.stamp();
    Session& all = art.session();
    SubtreeStamps& known = all.subtreeStamps;
    if (known.lastStamp != all.lastStamp || known.exchanges != all.exchanges)
        known = {all.lastStamp, all.exchanges, {}};
    const auto [entry, isNew] = known.answers.try_emplace(&art, 0);
    if (isNew)
        for (const Art* each = &art; each != nullptr; each = nextInPreorder(*each, art))
            entry->second = std::max(entry->second, each->stamp());
    return entry->second;
}

} // namespace easel
