#pragma once

/// The placement of nested rectangles: rows, columns and overlays, alignment, guides, spacing.
/// Knows nothing of texts, kinds or keys; lengths are whole pixels.
///
/// 1. The caller fills in the nodes: settings and measured lengths on both axes.
/// 2. `layOut` on x. An item whose height depends on its width may now change `natural` on y.
/// 3. `layOut` on y. Positions and lengths on both axes are then final.
///
/// Guides are lines inside items, such as the baseline of a text or the end of a label. On y the
/// guides of the items in a row meet, on x those of the items in a column, also across nested
/// containers: the first guide of an item moves the item, and containers grow where they must.
/// Guides count from the side an item is aligned to; near ones and far ones never meet.

#include "toolkit/layout/Alignment.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace NRDM::layout::engine {

/// Wide enough for the sum of every length a tree may hold.
using Length = std::int64_t;

/// Two sides on one axis: left and right, or top and bottom.
struct Sides {
    Length near = 0;
    Length far = 0;
};

/// What is known of a node on one axis, and what the engine makes of it.
struct NodeOnAxis {
    Alignment alignment = Alignment::Default;
    Alignment childAlignment = Alignment::Near;
    bool stopsGuides = false; ///< neither gives guides to its container nor is moved by them
    Sides margin;
    Sides frame;
    Sides outset;       ///< overhang; grows to that of the children and moves nothing
    Length natural = 0; ///< measured length; of a container the least it may have
    std::vector<Length> measuredGuides; ///< of an item, from its near edge

    Length position = 0; ///< from the root's near edge
    Length length = 0;
    std::vector<Length> guides; ///< final, from the node's near edge

    // In between: the least length, what the children take of it, the gap ahead, and the guides
    // by the side they count from.
    Length need = 0;
    Length used = 0;
    Length before = 0;
    std::vector<Length> nearGuides;
    std::vector<Length> farGuides;
};

struct Node {
    Stringing stringing = Stringing::Leaf;
    Length indent = 0;        ///< from the edge the node is aligned to, across its container only
    std::vector<Length> gaps; ///< gap i stands before child i + 1; the last one repeats
    std::vector<std::size_t> children; ///< indices of nodes
    std::array<NodeOnAxis, 2> axes;

    [[nodiscard]] NodeOnAxis& on(Axis axis) { return axes[static_cast<std::size_t>(axis)]; }
    [[nodiscard]] const NodeOnAxis& on(Axis axis) const {
        return axes[static_cast<std::size_t>(axis)];
    }
};

/// A tree in one list: the root first, each node before its children. Along its container no
/// far-aligned node may stand before one that is not.
using Nodes = std::vector<Node>;

/// Works out position and length of every node on `axis`. The root gets the least length that
/// holds everything, and no less than its natural one. Lengths beyond all measure come out large,
/// never wrapped around.
void layOut(Nodes& nodes, Axis axis);

} // namespace NRDM::layout::engine
