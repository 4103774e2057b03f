#pragma once

#include "easel/document/Art.h"

namespace easel {

/// A place among the children of `parent`: in front of `behind`, or at the bottom when that is
/// null.
struct Position {
    Art* parent;
    Art* behind;
};

[[nodiscard]] inline Position atBottomOf(Art& parent) noexcept { return {&parent, nullptr}; }
[[nodiscard]] inline Position onTopOf(Art& parent) noexcept {
    return {&parent, parent.firstChild()};
}
[[nodiscard]] inline Position inFrontOf(Art& art) noexcept { return {art.parent(), &art}; }
[[nodiscard]] inline Position behind(Art& art) noexcept { return {art.parent(), art.next()}; }

// These change the tree, keeping former states for undo. They ask nothing about locks.

/// A new object without content; a plug-in group has its two groups. Time stamps: its own, and its
/// parent's.
Art& createArt(Document& document, ai::int16 type, Position position);
/// Removes `art` with all its descendants.
void disposeArt(Art& art);
/// Moves `art` with all it carries. `position` must not be inside it.
void moveArt(Art& art, Position position);
/// A deep copy with the dictionaries, flags, names and notes of the original.
Art& duplicateArt(const Art& art, Position position);

// For the document only: the object that everything hangs on, and the end of it all.
[[nodiscard]] Art& makeRoot(Document& document);
void freeTree(Art& root);

// Walks; `next...` never leaves the subtree of `root`.

/// The object after `art` in pre-order: parents before children, front before back. Null at the
/// end.
[[nodiscard]] Art* nextInPreorder(const Art& art, const Art& root) noexcept;
/// The same, without going into `art`.
[[nodiscard]] Art* nextSkippingChildren(const Art& art, const Art& root) noexcept;
[[nodiscard]] bool isInside(const Art& art, const Art& ancestor) noexcept;
/// `art`, or the nearest above it, for which `is` holds; null when it holds for none.
template <typename Is> [[nodiscard]] const Art* nearestUp(const Art& art, Is is) {
    const Art* up = &art;
    while (up != nullptr && !is(*up))
        up = up->parent();
    return up;
}

/// Holds children of its own: groups, compound paths and plug-in groups.
[[nodiscard]] bool isContainer(const Art& art) noexcept;
/// Both null unless `art` is a plug-in group.
[[nodiscard]] Art* editArt(const Art& art) noexcept;
[[nodiscard]] Art* resultArt(const Art& art) noexcept;
/// The bottom-most of what a group shows: of a plug-in group what its result holds, or its edit art
/// while it has none.
[[nodiscard]] const Art* lastShown(const Art& group) noexcept;
/// Is `art` in the result art of a plug-in group, which is painted but neither selected nor edited?
[[nodiscard]] bool isResultGroup(const Art& art) noexcept;

/// The object whose style paints `art`: the outermost compound path around it, or itself.
[[nodiscard]] const Art& styleCarrier(const Art& art) noexcept;
[[nodiscard]] Art& styleCarrier(Art& art) noexcept;

/// The object whose style plug-ins read and write as that of `art`.
[[nodiscard]] Art& styleHolder(Art& art) noexcept;

/// The innermost layer's group that holds `art`, itself included; null when it is on none.
[[nodiscard]] Art* layerOf(const Art& art) noexcept;
/// The later of the time stamps of `art` and all its descendants.
[[nodiscard]] std::uint64_t subtreeStamp(const Art& art);

} // namespace easel
