#include "toolkit/layout/Nodes.h"

#include "toolkit/layout/Limits.h"

#include <algorithm>

namespace NRDM::layout {
namespace {

using engine::Length;

/// The keys of one border: for all sides, and for each.
struct BorderKeys {
    Key all, left, top, right, bottom;
};

constexpr BorderKeys kMargin{Key::Margin, Key::MarginLeft, Key::MarginTop, Key::MarginRight,
                             Key::MarginBottom};
constexpr BorderKeys kFrame{Key::Frame, Key::FrameLeft, Key::FrameTop, Key::FrameRight,
                            Key::FrameBottom};
constexpr BorderKeys kOutset{Key::Outset, Key::OutsetLeft, Key::OutsetTop, Key::OutsetRight,
                             Key::OutsetBottom};

/// The border on `axis`. The key of a side counts above the one for all sides.
engine::Sides border(const Element& element, const BorderKeys& keys, Axis axis) {
    std::vector<int> sides = lengthsOf(element, keys.all).value_or(std::vector{0});
    if (sides.size() == 1) sides.assign(4, sides.front());
    const int top = integerOf(element, keys.top).value_or(sides[0]);
    const int left = integerOf(element, keys.left).value_or(sides[1]);
    const int bottom = integerOf(element, keys.bottom).value_or(sides[2]);
    const int right = integerOf(element, keys.right).value_or(sides[3]);
    if (axis == Axis::X) return {left, right};
    return {top, bottom};
}

/// Guides on x are the item's own `hsnap`; on y the baseline, which comes first because the first
/// guide moves the item, and then `vsnap`.
std::vector<Length> guidesOf(const Element& item, Axis axis, const ItemSize& natural) {
    std::vector<Length> guides;
    if (axis == Axis::Y) {
        const int baseline = integerOf(item, Key::Baseline).value_or(natural.baseline.value_or(-1));
        if (baseline >= 0) guides.push_back(baseline);
    }
    const Key key = axis == Axis::X ? Key::Hsnap : Key::Vsnap;
    for (const int guide : lengthsOf(item, key).value_or(std::vector<int>()))
        guides.push_back(guide);
    return guides;
}

engine::NodeOnAxis nodeOnAxis(const Element& element, Axis axis, const ItemSize& natural) {
    engine::NodeOnAxis node;
    node.alignment = alignmentOf(element, axis);
    node.childAlignment = childAlignmentOf(element, axis);
    node.stopsGuides = truthOf(element, Key::SuppressGuidePropagation).value_or(false);
    node.margin = border(element, kMargin, axis);
    node.frame = border(element, kFrame, axis);
    node.outset = border(element, kOutset, axis);
    const bool isX = axis == Axis::X;
    node.natural = integerOf(element, isX ? Key::Width : Key::Height)
                       .value_or(isX ? natural.width : natural.height);
    if (recordOf(element.kind).role == Role::Item)
        node.measuredGuides = guidesOf(element, axis, natural);
    return node;
}

/// The frame of a group that shows its name leaves room for it.
void makeRoomForTitle(const Element& element, engine::Node& node, const ItemSizes& sizes) {
    const bool showsName =
        recordOf(element.kind).role == Role::Container && !itemTypeOf(element).empty();
    if (!showsName || element.attributes.contains(Key::FrameTop)) return;
    node.on(Axis::Y).frame.near = sizes.titleHeight(element);
}

engine::Node nodeOf(const Element& element, const ItemSizes& sizes) {
    const bool item = recordOf(element.kind).role == Role::Item;
    const ItemSize natural = item ? sizes.measure(element) : ItemSize();
    engine::Node node;
    node.stringing = stringingOf(element);
    node.indent = integerOf(element, Key::Indent).value_or(0);
    constexpr int kDefaultSpacing = 10;
    for (const int gap : lengthsOf(element, Key::Spacing).value_or(std::vector{kDefaultSpacing}))
        node.gaps.push_back(gap);
    for (const Axis axis : {Axis::X, Axis::Y})
        node.on(axis) = nodeOnAxis(element, axis, natural);
    makeRoomForTitle(element, node, sizes);
    return node;
}

/// Appends `element` and, behind it, all that is in it; returns its index.
std::size_t append(MeasuredLayout& layout, const Element& element, const ItemSizes& sizes) {
    const std::size_t index = layout.nodes.size();
    layout.nodes.push_back(nodeOf(element, sizes));
    layout.elements.push_back(&element);
    for (const Element& child : element.children) {
        if (recordOf(child.kind).role == Role::Entry) continue;
        const std::size_t childIndex = append(layout, child, sizes);
        layout.nodes[index].children.push_back(childIndex);
    }
    return index;
}

} // namespace

MeasuredLayout measured(const Layout& layout, const ItemSizes& sizes) {
    MeasuredLayout result;
    append(result, layout.dialog, sizes);
    return result;
}

void layOutBothAxes(MeasuredLayout& layout, const ItemSizes& sizes) {
    engine::layOut(layout.nodes, Axis::X);
    for (std::size_t i = 0; i < layout.nodes.size(); ++i) {
        const Element& element = *layout.elements[i];
        if (recordOf(element.kind).role != Role::Item) continue;
        if (element.attributes.contains(Key::Height)) continue;
        engine::Node& node = layout.nodes[i];
        const Length width = std::clamp<Length>(node.on(Axis::X).length, 0, kMaxCoordinate);
        Length& height = node.on(Axis::Y).natural;
        height = sizes.heightAt(element, static_cast<int>(width), static_cast<int>(height));
    }
    engine::layOut(layout.nodes, Axis::Y);
}

} // namespace NRDM::layout
