#pragma once

#include "easel/document/ArtTree.h"

/// Where the plug-in may put art: paint orders, kinds of containers, locks, the insertion point.

namespace easel {

/// The place that a paint order and its reference mean. Throws 'ORD?' for an unknown order, 'PARM'
/// when the reference is missing or cannot hold art, 'ELIO' beside a top-level layer's group or
/// beside the parts of a plug-in group.
[[nodiscard]] Position placeFor(ai::int16 order, Art* reference);
/// May the plug-in put art of that type there? Throws '~VAT', 'ELIO' or 'NESS'.
void checkPlace(const Position& place, ai::int16 type);
/// The same for `art` with all it contains.
void checkPlace(const Position& place, const Art& art);

/// Where drawing tools put new art: above `art`, or inside it on top.
struct InsertionPoint {
    Art* art;
    ai::int16 order;
};
[[nodiscard]] InsertionPoint insertionPoint(const Document& document);
/// Inside a group, above anything else; where that cannot be, the nearest parent that can hold art.
void setInsertionPoint(Art& art);

} // namespace easel
