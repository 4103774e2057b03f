#pragma once

#include "easel/document/ArtTree.h"

/// Where the plug-in may put art: paint orders, kinds of containers, locks, the insertion point.

namespace easel {

/// The place that a paint order and its reference mean in `document`. Throws 'ORD?' for an unknown
/// order, 'PARM' when the reference is missing or cannot hold art, 'ELIO' beside a top-level
/// layer's group or beside the parts of a plug-in group.
[[nodiscard]] Position placeFor(Document& document, ai::int16 order, Art* reference);
/// May the plug-in put art of that type there? Throws '~VAT', 'ELIO' or 'NESS'.
void checkPlace(const Position& place, ai::int16 type);
/// The same for `art` with all it contains.
void checkPlace(const Position& place, const Art& art);

/// What drawing tools put new art into, on top: the current layer. Throws 'DOC?' without one.
[[nodiscard]] Art& insertionGroup(const Document& document);

} // namespace easel
