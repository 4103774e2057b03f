#pragma once

/// From the elements of a layout to the nodes that the engine places.

#include "toolkit/layout/Engine.h"
#include "toolkit/layout/Layout.h"

#include <vector>

namespace NRDM::layout {

/// The nodes of a layout, measured and ready to be laid out; `elements[i]` is what `nodes[i]`
/// stands for.
struct MeasuredLayout {
    engine::Nodes nodes;
    std::vector<const Element*> elements;
};

[[nodiscard]] MeasuredLayout measured(const Layout& layout, const ItemSizes& sizes);

/// Lays out both axes, and in between asks the items again for the heights that depend on widths.
void layOutBothAxes(MeasuredLayout& layout, const ItemSizes& sizes);

} // namespace NRDM::layout
