#include "toolkit/layout/Layout.h"
#include "toolkit/layout/Limits.h"
#include "toolkit/layout/Nodes.h"

#include <cstdlib>

namespace NRDM::layout {
namespace {

using engine::Length;

int pixels(Length length, const Element& element, const Layout& layout) {
    if (std::abs(length) <= kMaxCoordinate) return static_cast<int>(length);
    throw Error(
        {Severity::Error, element.position,
         "this element comes out farther than " + std::to_string(kMaxCoordinate) + " pixels"},
        layout.name);
}

Placed placed(const engine::Node& node, const Element& element, const Layout& layout) {
    const auto inPixels = [&](Length length) { return pixels(length, element, layout); };
    const engine::NodeOnAxis& x = node.on(Axis::X);
    const engine::NodeOnAxis& y = node.on(Axis::Y);
    return {&element,
            {inPixels(x.position), inPixels(y.position), inPixels(x.position + x.length),
             inPixels(y.position + y.length)},
            {inPixels(x.outset.near), inPixels(y.outset.near), inPixels(x.outset.far),
             inPixels(y.outset.far)}};
}

} // namespace

int ItemSizes::heightAt(const Element&, int, int natural) const { return natural; }

int ItemSizes::titleHeight(const Element&) const { return 0; }

Placement place(const Layout& layout, const ItemSizes& sizes) {
    MeasuredLayout tree = measured(layout, sizes);
    layOutBothAxes(tree, sizes);
    Placement placement;
    for (std::size_t i = 0; i < tree.nodes.size(); ++i)
        placement.push_back(placed(tree.nodes[i], *tree.elements[i], layout));
    return placement;
}

} // namespace NRDM::layout
