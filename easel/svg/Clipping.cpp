#include "easel/document/ArtTree.h"
#include "easel/document/Bounds.h"
#include "easel/svg/ArtBuilder.h"

namespace easel::svg {
namespace {

/// A clip path may itself be clipped; more of them are no drawing.
constexpr std::size_t kMostClips = 16;

} // namespace

/// Clip masks add nothing to what they clip.
Box ArtBuilder::localBounds(const Art& art, const Matrix& matrix) const {
    Box box;
    const std::optional<Matrix> back = inverse(matrix);
    for (const Art* each = &art; back && each != nullptr;) {
        const bool isWhole = each->type() != kGroupArt || each->has(kArtIsClipMask);
        const auto bounds = isWhole && !each->has(kArtIsClipMask) ? boundsOf(*each, kNoStrokeBounds)
                                                                  : std::optional<AIDoubleRect>{};
        for (const double x :
             bounds ? std::vector{bounds->left, bounds->right} : std::vector<double>{})
            for (const double y : {bounds->top, bounds->bottom})
                box.add(*back * Point{x + offset_.x, -y + offset_.y});
        each = isWhole ? nextSkippingChildren(*each, art) : nextInPreorder(*each, art);
    }
    return box;
}

/// The union of the outlines of what a clip path holds, in the coordinates of the drawing. Nothing
/// when it holds what has no outline, or its shapes cannot be one outline.
std::optional<Outline> ArtBuilder::clipOutline(const Element& clipPath, const Context& context,
                                               bool& evenOdd) {
    Outline outline;
    bool first = true;
    for (const NodeIndex node : childElements(state_.tree, clipPath.node())) {
        const Element child{state_.tree, node};
        const auto here = pushed(state_.path, child.selectorName());
        state_.countElement(child);
        const auto inner = std::make_unique<Context>(contextOf(child, context));
        if (!inner->style.displayed || !inner->style.visible) continue;
        const Element* shape = &child;
        std::optional<Element> used;
        if (child.name() == "use") {
            const NodeIndex target = state_.tree.find(child.reference());
            if (target == kNoNode) continue;
            state_.countReference(child);
            used.emplace(state_.tree, target);
            inner->matrix =
                inner->matrix * translation({child.length("x", inner->viewport.width, 0),
                                             child.length("y", inner->viewport.height, 0)});
            *inner = contextOf(*used, *inner);
            shape = &*used;
        }
        const auto attribute = [&](std::string_view name) { return shape->get(name); };
        const auto part =
            shapeOutline(shape->name(), attribute, inner->viewport, inner->style.font.size);
        if (!part) {
            if (shape->name() == "text" || shape->name() == "use" || shape->name() == "g")
                return std::nullopt;
            continue; // a title, an animation
        }
        const bool otherRule = !first && evenOdd != inner->style.clipEvenOdd;
        // Two shapes that count crossings would cut holes into one another.
        if (otherRule || (!first && evenOdd)) return std::nullopt;
        evenOdd = inner->style.clipEvenOdd;
        first = false;
        for (Subpath& subpath : transformed(part->outline, inner->matrix)) {
            if (subpath.anchors.size() > static_cast<std::size_t>(kMaxPathSegments))
                return std::nullopt;
            subpath.closed = true; // clipping closes what is open
            outline.push_back(std::move(subpath));
        }
    }
    if (outline.empty()) return std::nullopt;
    return outline;
}

void ArtBuilder::keepClipAsText(const Element& element, Art& art, const Context& context) {
    const std::string& clipPath = context.style.clipPath;
    if (state_.tree.find(clipPath) == kNoNode) return; // as if there were none
    state_.warn(element, "the clip path of <" + std::string{element.name()} +
                             "> holds more than shapes of one fill rule; it is kept, but Easel's "
                             "own pictures are not clipped");
    auto effects = effectsOf(element, context);
    if (!effects) effects = std::make_shared<Effects>();
    effects->properties["clip-path"] = "url(#" + clipPath + ")";
    effects->space = softMatrix(context.matrix, offset_);
    effects->spatial = true;
    art.write().style.write().foreign = std::move(effects);
}

std::vector<LayerClip::Mask> ArtBuilder::clipMasks(const std::string& clipPath,
                                                   const Context& context, const Box& bounds) {
    std::vector<LayerClip::Mask> masks;
    for (std::string id = clipPath; !id.empty() && masks.size() < kMostClips;) {
        const NodeIndex node = state_.tree.find(id);
        if (node == kNoNode || state_.tree.at(node).name != "clipPath") return {};
        const Element element{state_.tree, node};
        state_.countReference(element);
        Context start{Style{}, context.matrix, context.viewport};
        if (element.get("clipPathUnits") == "objectBoundingBox") {
            if (bounds.empty) return {};
            start.matrix = start.matrix * fromUnitSquare(bounds);
        }
        const auto own = std::make_unique<Context>(contextOf(element, start));
        bool evenOdd = false;
        auto outline = clipOutline(element, *own, evenOdd);
        if (!outline) return {};
        masks.push_back({std::move(*outline), evenOdd});
        id = own->style.clipPath;
    }
    return masks;
}

bool ArtBuilder::clip(Art& group, const std::string& clipPath, const Context& context,
                      const Box& bounds) {
    std::vector<LayerClip::Mask> masks = clipMasks(clipPath, context, bounds);
    for (auto& [outline, evenOdd] : masks)
        addMask(group, std::move(outline), evenOdd);
    return !masks.empty();
}

bool ArtBuilder::clipLayer(Art& layer, const std::string& clipPath, const Context& context) {
    auto content = std::make_shared<LayerClip>();
    content->masks = clipMasks(clipPath, context, localBounds(layer, context.matrix));
    if (content->masks.empty()) return false;
    layer.write().details.write().foreign = std::move(content);
    return true;
}

void ArtBuilder::addMask(Art& group, Outline outline, bool evenOdd) {
    ArtStyle style;
    style.path.evenodd = evenOdd ? 1 : 0;
    Art& mask = addOutline(std::move(outline), group, Matrix{}, style);
    mask.write().attributes |= static_cast<std::uint32_t>(kArtIsClipMask);
    group.write().clipped = true;
    if (source_ != nullptr) source_->art[group.handle()].parts.push_back(mask.handle());
}

void ArtBuilder::clipToViewport(const Element& element, Art& group, const Context& context) {
    const auto overflow = context.style.others.find("overflow");
    const bool isClipped = overflow == context.style.others.end() ||
                           (overflow->second != "visible" && overflow->second != "auto");
    if (!isClipped || group.firstChild() == nullptr) return;
    const Viewport& viewport = context.viewport;
    const auto attribute = [&](std::string_view name) {
        if ((name == "width" || name == "height") && !element.has(name)) return std::string{"100%"};
        return name == "rx" || name == "ry" ? std::string{} : element.get(name);
    };
    Outline outline = shapeOutline("rect", attribute, viewport, context.style.font.size)->outline;
    addMask(group, transformed(std::move(outline), context.matrix), false);
}

} // namespace easel::svg
