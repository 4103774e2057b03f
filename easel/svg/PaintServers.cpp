#include "easel/svg/PaintServers.h"

#include "easel/svg/Numbers.h"
#include "easel/svg/ViewBox.h"

#include <algorithm>
#include <cmath>

namespace easel::svg {
namespace {

/// Longer chains of references are no drawing, and circular ones end here as well.
constexpr std::size_t kLongestChain = 32;

/// More stops than this look no different.
constexpr std::size_t kMostStops = 4096;

std::vector<GradientStop> readStops(ReadingState& state, const Element& gradient) {
    std::vector<GradientStop> stops;
    for (const NodeIndex node : childElements(state.tree, gradient.node())) {
        const Element element{state.tree, node};
        if (element.name() != "stop" || stops.size() >= kMostStops) continue;
        const auto outer = pushed(state.path, gradient.selectorName());
        const auto inner = pushed(state.path, element.selectorName());
        state.countElement(element);
        const Style style = styleOf(element.properties(state.sheet, state.path), Style{}, 0.0);
        GradientStop stop;
        stop.offset = parseFraction(element.get("offset")).value_or(0.0);
        if (!stops.empty()) stop.offset = std::max(stop.offset, stops.back().offset);
        stop.colour = style.stopColour;
        stop.colour.alpha *= static_cast<float>(style.stopOpacity);
        stops.push_back(stop);
    }
    return stops;
}

/// Reads the coordinates of a gradient or pattern, which are fractions of the shape's bounds or
/// lengths in user space.
class ServerLengths {
public:
    ServerLengths(const std::vector<Element>& chain, bool overBounds, const Viewport& viewport)
        : chain_(chain), whole_(overBounds ? Viewport{1, 1} : viewport) {}

    [[nodiscard]] double across(std::string_view name, const char* standard) const {
        return read(name, standard, whole_.width);
    }
    [[nodiscard]] double down(std::string_view name, const char* standard) const {
        return read(name, standard, whole_.height);
    }
    [[nodiscard]] double slanted(std::string_view name, const char* standard) const {
        return read(name, standard, whole_.diagonal());
    }

private:
    [[nodiscard]] double read(std::string_view name, const char* standard, double whole) const {
        const std::string text = attributeInChain(chain_, name);
        const auto length = parseLength(text.empty() ? standard : text, whole);
        return std::clamp(length.value_or(0.0), -kLargestCoordinate, kLargestCoordinate);
    }

    const std::vector<Element>& chain_;
    Viewport whole_;
};

Matrix transformOf(const std::vector<Element>& chain, std::string_view attribute) {
    const std::string text = attributeInChain(chain, attribute);
    return parseTransform(text).value_or(Matrix{});
}

/// A focus outside the circle is brought inside, as SVG has it.
void bringFocusInside(GradientContent& gradient) {
    constexpr double kInside = 0.999;
    const Point way = gradient.start - gradient.end;
    const double distance = std::hypot(way.x, way.y);
    if (distance > kInside * gradient.radius)
        gradient.start = gradient.end + kInside * gradient.radius / distance * way;
}

} // namespace

bool isGenerated(const XmlTree& tree, NodeIndex node) {
    const XmlTree::Node& element = tree.at(node);
    return element.kind == XmlTree::Kind::Element && element.name == "defs" &&
           element.parent == tree.root() && Element{tree, node}.isTrue("easel:generated");
}

bool isDerived(const XmlTree& tree, const Element& element) {
    if (!element.isTrue("easel:derived")) return false;
    const NodeIndex source = tree.find(element.get("easel:source"));
    return source != kNoNode && !Element{tree, source}.isTrue("easel:derived");
}

std::vector<Element> referenceChain(const XmlTree& tree, NodeIndex node) {
    std::vector<Element> chain;
    while (node != kNoNode && chain.size() < kLongestChain) {
        chain.emplace_back(tree, node);
        const std::string next = chain.back().reference();
        node = next.empty() ? kNoNode : tree.find(next);
    }
    return chain;
}

std::string attributeInChain(const std::vector<Element>& chain, std::string_view attribute) {
    for (const Element& element : chain)
        if (element.has(attribute)) return element.get(attribute);
    return {};
}

std::shared_ptr<const GradientContent> gradientContent(ReadingState& state, NodeIndex node,
                                                       const Viewport& viewport) {
    const std::string_view name = state.tree.at(node).name;
    if (name != "linearGradient" && name != "radialGradient") return nullptr;
    if (const auto known = state.gradients.find(node); known != state.gradients.end())
        return known->second;
    const std::vector<Element> chain = referenceChain(state.tree, node);
    auto gradient = std::make_shared<GradientContent>();
    gradient->overBounds = attributeInChain(chain, "gradientUnits") != "userSpaceOnUse";
    gradient->transform = transformOf(chain, "gradientTransform");
    const std::string spread = attributeInChain(chain, "spreadMethod");
    gradient->spread = spread == "reflect"  ? GradientContent::Spread::Reflect
                       : spread == "repeat" ? GradientContent::Spread::Repeat
                                            : GradientContent::Spread::Pad;
    const ServerLengths lengths{chain, gradient->overBounds, viewport};
    if (name == "linearGradient") {
        gradient->start = {lengths.across("x1", "0%"), lengths.down("y1", "0%")};
        gradient->end = {lengths.across("x2", "100%"), lengths.down("y2", "0%")};
    } else {
        gradient->kind = GradientContent::Kind::Radial;
        gradient->end = {lengths.across("cx", "50%"), lengths.down("cy", "50%")};
        gradient->radius = std::max(0.0, lengths.slanted("r", "50%"));
        gradient->focalRadius = std::clamp(lengths.slanted("fr", "0%"), 0.0, gradient->radius);
        const bool hasX = !attributeInChain(chain, "fx").empty();
        const bool hasY = !attributeInChain(chain, "fy").empty();
        gradient->start = {hasX ? lengths.across("fx", "50%") : gradient->end.x,
                           hasY ? lengths.down("fy", "50%") : gradient->end.y};
        bringFocusInside(*gradient);
    }
    for (const Element& element : chain) {
        gradient->stops = readStops(state, element);
        if (!gradient->stops.empty()) break;
    }
    return state.gradients.emplace(node, std::move(gradient)).first->second;
}

std::shared_ptr<PatternContent> patternTile(const std::vector<Element>& chain,
                                            const Viewport& viewport, const Box& bounds) {
    auto pattern = std::make_shared<PatternContent>();
    const Point span = bounds.max - bounds.min;
    const bool overBounds = attributeInChain(chain, "patternUnits") != "userSpaceOnUse";
    const ServerLengths lengths{chain, overBounds, viewport};
    pattern->tileCorner = {lengths.across("x", "0"), lengths.down("y", "0")};
    pattern->tileSize = {lengths.across("width", "0"), lengths.down("height", "0")};
    if (overBounds) {
        pattern->tileCorner = {bounds.min.x + pattern->tileCorner.x * span.x,
                               bounds.min.y + pattern->tileCorner.y * span.y};
        pattern->tileSize = {pattern->tileSize.x * span.x, pattern->tileSize.y * span.y};
    }
    pattern->transform = transformOf(chain, "patternTransform");
    pattern->resolved = overBounds;
    const auto box = parseViewBox(attributeInChain(chain, "viewBox"));
    if (box) {
        pattern->contentMatrix = fitted(*box, pattern->tileCorner, pattern->tileSize,
                                        attributeInChain(chain, "preserveAspectRatio"));
        return pattern;
    }
    pattern->contentMatrix = {1, 0, 0, 1, pattern->tileCorner.x, pattern->tileCorner.y};
    if (attributeInChain(chain, "patternContentUnits") == "objectBoundingBox" && span.x > 0 &&
        span.y > 0) {
        pattern->contentMatrix.a = span.x;
        pattern->contentMatrix.d = span.y;
        pattern->resolved = true;
        pattern->viewBoxSize = {pattern->tileSize.x / span.x, pattern->tileSize.y / span.y};
    }
    return pattern;
}

Matrix ownTransform(const Definition& definition) {
    if (const auto* gradient = dynamic_cast<const GradientContent*>(definition.content.get()))
        return gradient->transform;
    if (const auto* pattern = dynamic_cast<const PatternContent*>(definition.content.get()))
        return pattern->transform;
    return {};
}

} // namespace easel::svg
