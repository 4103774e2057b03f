#pragma once

#include "easel/document/ArtTree.h"

namespace easel {

/// The attribute bits of `art` that are in `mask`, computed ones included: selection of containers,
/// part of a compound path, kind of style.
[[nodiscard]] ai::int32 userAttributes(const Art& art, ai::int32 mask);
/// Sets the bits in `mask` to those in `value`. Throws 'ELIO', 'NESS' or 'PARM' when that may not
/// be. Locking and hiding deselect.
void setUserAttributes(Art& art, ai::int32 mask, ai::int32 value);

/// May the plug-in change `art`? Throws 'ELIO' when it or a parent is locked or hidden, 'NESS' when
/// a layer is. A context that allows all changes overlooks the parents.
void checkEditable(const Art& art);
/// May the plug-in change `art` together with all that it contains? Where locked members do not go
/// along, throws 'ELIO' when there is one.
void checkContents(const Art& art);
/// May the plug-in add to `container` or take from it?
void checkOpen(const Art& container);
/// Neither it nor anything above it is locked or hidden.
[[nodiscard]] bool isEditable(const Art& art) noexcept;
/// Neither it nor anything above it is hidden.
[[nodiscard]] bool isVisible(const Art& art) noexcept;

/// False when `art` cannot be selected because it or something above it is locked or hidden; that
/// throws as `checkEditable` does unless a switch says that nothing shall happen.
[[nodiscard]] bool maySelect(const Art& art);

enum class Selected : std::uint8_t { No, Partly, Fully };
[[nodiscard]] Selected selectionOf(const Art& art) noexcept;
/// Selects or deselects everything in `art` that can be selected. Asks nothing about locks.
void select(Art& art, bool selected);
/// Deselects everything in the document.
void deselectAll(Document& document);
/// Selects everything that is visible and editable, guides included.
void selectAll(Document& document);

/// `AISegmentSelection` of one anchor.
[[nodiscard]] ai::int16 segmentSelection(const Art& path, std::size_t index) noexcept;
void setSegmentSelection(Art& path, std::size_t index, ai::int16 selection);
/// Brings the attributes of a path in line with the selection and the number of its anchors.
void settleSelection(ArtContent& content);

} // namespace easel
