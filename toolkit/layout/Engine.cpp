#include "toolkit/layout/Engine.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace NRDM::layout::engine {
namespace {

using Guides = std::vector<Length>;

/// Guides that chase each other can double in every round. Held to this, the sums of a thousand
/// lengths stay far inside 64 bits, and the result is still recognisably too large.
constexpr Length kBeyondMeasure = Length{1} << 40;

Length held(Length length) { return std::clamp(length, -kBeyondMeasure, kBeyondMeasure); }

/// Fill alignments have guides on both sides: the side they are aligned to has the item's own,
/// the other those of the children within. Centred ones have none: they stand where their
/// rectangle goes.
bool hasNearGuides(Alignment alignment) {
    return alignment == Alignment::Near || alignment == Alignment::NearFill ||
           alignment == Alignment::FarFill;
}

bool hasFarGuides(Alignment alignment) {
    return alignment == Alignment::Far || alignment == Alignment::FarFill ||
           alignment == Alignment::NearFill;
}

bool isNear(Alignment alignment) {
    return alignment == Alignment::Near || alignment == Alignment::NearFill;
}

bool isCentred(Alignment alignment) {
    return alignment == Alignment::Center || alignment == Alignment::Proportional;
}

bool takesSpareRoom(Alignment alignment) {
    return isCentred(alignment) || alignment == Alignment::NearFill ||
           alignment == Alignment::FarFill;
}

/// Raises the slots of a container, from `slot` on, to the guides of a child at `position`;
/// both count from the same side. Returns where the child then stands: a leaf moves with its
/// first guide.
Length raiseSlots(Guides& slots, std::size_t& slot, const Guides& guides, Length position,
                  bool leaf) {
    const std::size_t first = slot;
    for (const Length guide : guides) {
        slots[slot] = std::max(slots[slot], held(guide + position));
        ++slot;
    }
    return leaf && !guides.empty() ? slots[first] - guides.front() : position;
}

/// Moves the guides of a child at `position` to the slots of its container, from `slot` on; the
/// first guide of a leaf moves the leaf instead. Stops at the first guide that differed and says
/// so: what follows depends on how the child takes it.
bool lowerGuides(const Guides& slots, std::size_t& slot, Guides& guides, Length& position,
                 bool leaf) {
    std::size_t i = 0;
    if (leaf && !guides.empty()) {
        position = slots[slot++] - guides.front();
        i = 1;
    }
    for (; i < guides.size(); ++i, ++slot) {
        const Length lowered = held(slots[slot] - position);
        if (lowered == guides[i]) continue;
        guides[i] = lowered;
        return true;
    }
    return false;
}

/// Shares out spare pixels; those that do not divide go to the ones served last.
class Spare {
public:
    Spare(Length pixels, Length takers) : pixels_(pixels), takers_(takers) {}

    Length share() {
        const Length share = pixels_ / takers_;
        --takers_;
        pixels_ -= share;
        return share;
    }

private:
    Length pixels_;
    Length takers_;
};

/// The layout of one axis. Every step is a sweep over the nodes: forwards for parents first,
/// backwards for children first.
class AxisLayout {
public:
    AxisLayout(Nodes& nodes, Axis axis) : nodes_(nodes), axis_(axis) {}

    void run() {
        reset();
        childrenFirst([this](Node& node) { prepare(node); });
        settleGuides();
        for (Node& node : nodes_)
            node.on(axis_).length = node.on(axis_).need;
        parentsFirst([this](Node& node) { distribute(node); });
        childrenFirst([this](Node& node) { growOutset(node); });
        for (Node& node : nodes_)
            finish(node);
    }

private:
    // -- The tree on this axis ---------------------------------------------------------------

    template <class Step> void parentsFirst(Step step) {
        for (Node& node : nodes_)
            if (!isLeaf(node)) step(node);
    }

    template <class Step> void childrenFirst(Step step) {
        for (auto node = nodes_.rbegin(); node != nodes_.rend(); ++node)
            if (!isLeaf(*node)) step(*node);
    }

    static bool isLeaf(const Node& node) { return node.stringing == Stringing::Leaf; }

    [[nodiscard]] bool isAlong(const Node& container) const {
        return runsAlong(container.stringing, axis_);
    }

    [[nodiscard]] NodeOnAxis& state(Node& node) const { return node.on(axis_); }
    [[nodiscard]] const NodeOnAxis& state(const Node& node) const { return node.on(axis_); }
    NodeOnAxis& state(std::size_t node) { return nodes_[node].on(axis_); }

    /// Room between a container's edge and its children.
    static Length nearRoom(const NodeOnAxis& box) { return box.frame.near + box.margin.near; }
    static Length farRoom(const NodeOnAxis& box) { return box.frame.far + box.margin.far; }

    static bool offersNear(const NodeOnAxis& child) {
        return !child.stopsGuides && hasNearGuides(child.alignment);
    }
    static bool offersFar(const NodeOnAxis& child) {
        return !child.stopsGuides && hasFarGuides(child.alignment);
    }

    /// Whether an item moves so that its first guide, from the near or far side, meets its line.
    [[nodiscard]] bool isMovedByNearGuide(std::size_t node) {
        return isLeaf(nodes_[node]) && offersNear(state(node)) && !state(node).nearGuides.empty();
    }
    [[nodiscard]] bool isMovedByFarGuide(std::size_t node) {
        return isLeaf(nodes_[node]) && offersFar(state(node)) && !state(node).farGuides.empty();
    }

    /// Where a child begins and ends across its container before guides move it, counted from
    /// the near and from the far edge.
    Sides placeAcross(const NodeOnAxis& box, std::size_t child) {
        Sides place{nearRoom(box), farRoom(box)};
        if (isNear(state(child).alignment)) place.near += nodes_[child].indent;
        if (isFar(state(child).alignment)) place.far += nodes_[child].indent;
        return place;
    }

    // -- Prepare -----------------------------------------------------------------------------

    void reset() {
        for (Node& node : nodes_) {
            NodeOnAxis& own = state(node);
            own.need = own.natural;
            own.position = own.used = own.before = 0;
            own.nearGuides.clear();
            own.farGuides.clear();
        }
    }

    /// Settles the children's alignment, gaps and guides, and makes a slot for every guide that
    /// may meet another one.
    void prepare(Node& container) {
        NodeOnAxis& box = state(container);
        std::size_t nearSlots = 0;
        std::size_t farSlots = 0;
        const auto count = [along = isAlong(container)](std::size_t& slots, const Guides& guides) {
            slots = along ? slots + guides.size() : std::max(slots, guides.size());
        };
        for (std::size_t i = 0; i < container.children.size(); ++i) {
            const std::size_t index = container.children[i];
            NodeOnAxis& child = state(index);
            if (child.alignment == Alignment::Default) child.alignment = box.childAlignment;
            if (isLeaf(nodes_[index])) takeMeasuredGuides(child);
            if (isAlong(container)) child.before = gapBefore(container, i);
            if (offersNear(child)) count(nearSlots, child.nearGuides);
            if (offersFar(child)) count(farSlots, child.farGuides);
        }
        box.nearGuides.assign(nearSlots, 0);
        box.farGuides.assign(farSlots, 0);
    }

    static Length gapBefore(const Node& container, std::size_t child) {
        if (child == 0 || container.gaps.empty()) return 0;
        return container.gaps[std::min(child, container.gaps.size()) - 1];
    }

    static void takeMeasuredGuides(NodeOnAxis& leaf) {
        if (isNear(leaf.alignment)) leaf.nearGuides = leaf.measuredGuides;
        if (!isFar(leaf.alignment)) return;
        leaf.farGuides = fromOtherEdge(leaf.measuredGuides, leaf.natural);
    }

    static Guides fromOtherEdge(const Guides& guides, Length length) {
        Guides turned;
        for (auto guide = guides.rbegin(); guide != guides.rend(); ++guide)
            turned.push_back(length - *guide);
        return turned;
    }

    // -- Least lengths and guides ------------------------------------------------------------

    /// Guides go up into the slots of the containers and, moved to meet, down again, which may
    /// move them further; until nothing moves.
    void settleGuides() {
        const auto raiseAll = [this] { childrenFirst([this](Node& node) { raise(node); }); };
        raiseAll();
        for (std::size_t round = 0; round <= nodes_.size() && lowerAll(); ++round)
            raiseAll();
    }

    void raise(Node& container) {
        NodeOnAxis& box = state(container);
        if (isAlong(container))
            raiseAlong(container, box);
        else
            raiseAcross(container, box);
        box.need = held(std::max(box.need, box.used));
    }

    void raiseAlong(const Node& container, NodeOnAxis& box) {
        Length place = farRoom(box);
        Length pushed = 0; // by guides from the far side
        std::size_t slot = 0;
        for (auto index = container.children.rbegin(); index != container.children.rend();
             ++index) {
            const NodeOnAxis& child = state(*index);
            if (offersFar(child)) {
                const Length moved =
                    raiseSlots(box.farGuides, slot, child.farGuides, place, isLeaf(nodes_[*index]));
                pushed += moved - place;
                place = moved;
            }
            place += child.need + child.before;
        }
        place = nearRoom(box);
        slot = 0;
        for (const std::size_t index : container.children) {
            const NodeOnAxis& child = state(index);
            place += child.before;
            if (offersNear(child))
                place = raiseSlots(box.nearGuides, slot, child.nearGuides, place,
                                   isLeaf(nodes_[index]));
            place += child.need;
        }
        box.used = place + farRoom(box) + pushed;
    }

    void raiseAcross(const Node& container, NodeOnAxis& box) {
        for (const std::size_t index : container.children) {
            const NodeOnAxis& child = state(index);
            const Sides place = placeAcross(box, index);
            std::size_t slot = 0;
            if (offersNear(child))
                raiseSlots(box.nearGuides, slot, child.nearGuides, place.near, false);
            slot = 0;
            if (offersFar(child))
                raiseSlots(box.farGuides, slot, child.farGuides, place.far, false);
        }
        box.used = nearRoom(box) + farRoom(box);
        for (const std::size_t index : container.children) {
            const NodeOnAxis& child = state(index);
            Sides place = placeAcross(box, index);
            if (isMovedByNearGuide(index))
                place.near = box.nearGuides.front() - child.nearGuides.front();
            if (isMovedByFarGuide(index))
                place.far = box.farGuides.front() - child.farGuides.front();
            box.used = std::max(box.used, child.need + place.near + place.far);
        }
    }

    /// Whether any guide moved.
    bool lowerAll() {
        bool changed = false;
        parentsFirst([this, &changed](Node& node) {
            if (isAlong(node) ? lowerAlong(node) : lowerAcross(node)) changed = true;
        });
        return changed;
    }

    bool lowerAlong(const Node& container) {
        const NodeOnAxis& box = state(container);
        Length place = farRoom(box);
        std::size_t slot = 0;
        for (auto index = container.children.rbegin(); index != container.children.rend();
             ++index) {
            NodeOnAxis& child = state(*index);
            if (offersFar(child) &&
                lowerGuides(box.farGuides, slot, child.farGuides, place, isLeaf(nodes_[*index])))
                return true;
            place += child.need + child.before;
        }
        place = nearRoom(box);
        slot = 0;
        for (const std::size_t index : container.children) {
            NodeOnAxis& child = state(index);
            place += child.before;
            if (offersNear(child) &&
                lowerGuides(box.nearGuides, slot, child.nearGuides, place, isLeaf(nodes_[index])))
                return true;
            place += child.need;
        }
        return false;
    }

    bool lowerAcross(const Node& container) {
        const NodeOnAxis& box = state(container);
        bool changed = false;
        for (const std::size_t index : container.children) {
            NodeOnAxis& child = state(index);
            const bool leaf = isLeaf(nodes_[index]);
            Sides place = placeAcross(box, index);
            std::size_t slot = 0;
            if (offersNear(child))
                changed |= lowerGuides(box.nearGuides, slot, child.nearGuides, place.near, leaf);
            slot = 0;
            if (offersFar(child))
                changed |= lowerGuides(box.farGuides, slot, child.farGuides, place.far, leaf);
        }
        return changed;
    }

    // -- Positions ---------------------------------------------------------------------------

    void distribute(Node& container) {
        if (isAlong(container))
            distributeAlong(container);
        else
            distributeAcross(container);
    }

    void distributeAlong(const Node& container) {
        const NodeOnAxis& box = state(container);
        const auto takers = std::ranges::count_if(container.children, [this](std::size_t child) {
            return takesSpareRoom(state(child).alignment);
        });
        Spare spare(box.length - box.used, takers);
        const std::size_t tail = placeTail(container, box, spare);
        placeHead(container, box, spare, tail);
    }

    /// Places the far-aligned children at the end, the last one first, and returns the first of
    /// them. A far guide takes the room behind it off a second time; layouts that use far guides
    /// along their container were drawn against that, so it stays.
    std::size_t placeTail(const Node& container, const NodeOnAxis& box, Spare& spare) {
        Length place = box.length - farRoom(box);
        std::size_t slot = 0;
        std::size_t first = container.children.size();
        for (; first > 0 && isFar(state(container.children[first - 1]).alignment); --first) {
            const std::size_t index = container.children[first - 1];
            NodeOnAxis& child = state(index);
            if (isMovedByFarGuide(index)) place -= box.farGuides[slot] - child.farGuides.front();
            if (offersFar(child)) slot += child.farGuides.size();
            child.length = child.need;
            if (child.alignment == Alignment::FarFill) child.length += spare.share();
            child.position = place - child.length;
            place -= child.length + child.before;
        }
        return first;
    }

    void placeHead(const Node& container, const NodeOnAxis& box, Spare& spare, std::size_t tail) {
        Length place = nearRoom(box);
        std::size_t slot = 0;
        for (std::size_t i = 0; i < tail; ++i) {
            const std::size_t index = container.children[i];
            NodeOnAxis& child = state(index);
            assert(!isFar(child.alignment));
            place += child.before;
            child.length = child.need;
            if (isMovedByNearGuide(index)) place = box.nearGuides[slot] - child.nearGuides.front();
            if (offersNear(child)) slot += child.nearGuides.size();
            const Length share = takesSpareRoom(child.alignment) ? spare.share() : 0;
            if (child.alignment == Alignment::NearFill) child.length += share;
            child.position = place;
            if (child.alignment == Alignment::Center) child.position += share / 2;
            if (child.alignment == Alignment::Proportional)
                child.position += proportionOf(share, place, box, child.need);
            if (isCentred(child.alignment)) place += share;
            place += child.length;
        }
    }

    /// The part of its share that stands ahead of a proportional child: none at the near end of
    /// the container, all at the far end.
    static Length proportionOf(Length share, Length place, const NodeOnAxis& box, Length need) {
        const Length room = box.length - nearRoom(box) - farRoom(box) - need - share;
        if (room == 0) return 0;
        // Single precision decides exact halves: 7/10 of 45 pixels is 32, not 31.
        const float ratio = static_cast<float>(place - nearRoom(box)) / static_cast<float>(room);
        const float part = ratio * static_cast<float>(share);
        const double ahead = std::floor(static_cast<double>(part) + 0.5);
        constexpr auto kMost = static_cast<double>(kBeyondMeasure);
        return static_cast<Length>(std::clamp(ahead, -kMost, kMost));
    }

    /// Across its container each child answers for itself.
    void distributeAcross(const Node& container) {
        const NodeOnAxis& box = state(container);
        for (const std::size_t index : container.children) {
            NodeOnAxis& child = state(index);
            const Length low = nearRoom(box);
            const Length high = box.length - farRoom(box);
            child.length = child.need;
            if (isNear(child.alignment)) {
                child.position = low + nodes_[index].indent;
                if (isMovedByNearGuide(index))
                    child.position = box.nearGuides.front() - child.nearGuides.front();
                if (child.alignment == Alignment::NearFill) child.length = high - child.position;
            } else if (isFar(child.alignment)) {
                Length end = high - nodes_[index].indent;
                if (isMovedByFarGuide(index))
                    end = box.length - (box.farGuides.front() - child.farGuides.front());
                // The far fill grows from where the unfilled item begins, and so past the far
                // end; it is what layouts that use it expect.
                child.position = end - child.need;
                if (child.alignment == Alignment::FarFill) child.length = end - low;
            } else {
                child.position = (high + low - child.need) / 2;
            }
        }
    }

    // -- Outsets, final guides and positions -------------------------------------------------

    /// What the children draw beyond the container's edges is an overhang of the container.
    void growOutset(Node& container) {
        if (container.children.empty()) return;
        NodeOnAxis& box = state(container);
        const Sides inside =
            isAlong(container) ? insideAlong(container, box) : insideAcross(container, box);
        box.outset.near = std::max(box.outset.near, -inside.near);
        box.outset.far = std::max(box.outset.far, -inside.far);
    }

    static Length drawnNear(const NodeOnAxis& child) { return child.position - child.outset.near; }
    static Length drawnFar(const NodeOnAxis& child) {
        return child.position + child.length + child.outset.far;
    }

    Sides insideAlong(const Node& container, const NodeOnAxis& box) {
        return {drawnNear(state(container.children.front())),
                box.length - drawnFar(state(container.children.back()))};
    }

    Sides insideAcross(const Node& container, const NodeOnAxis& box) {
        Sides inside = box.frame;
        for (const std::size_t index : container.children) {
            inside.near = std::min(inside.near, drawnNear(state(index)));
            inside.far = std::min(inside.far, box.length - drawnFar(state(index)));
        }
        return inside;
    }

    void finish(Node& node) {
        NodeOnAxis& own = state(node);
        own.guides = own.measuredGuides;
        if (isNear(own.alignment)) own.guides = own.nearGuides;
        if (isFar(own.alignment)) own.guides = fromOtherEdge(own.farGuides, own.length);
        for (const std::size_t child : node.children)
            state(child).position += own.position;
    }

    Nodes& nodes_;
    Axis axis_;
};

} // namespace

void layOut(Nodes& nodes, Axis axis) {
    if (!nodes.empty()) AxisLayout(nodes, axis).run();
}

} // namespace NRDM::layout::engine
