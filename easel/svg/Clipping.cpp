#include "easel/document/Bounds.h"
#include "easel/svg/ArtBuilder.h"

#include <algorithm>

namespace easel::svg {
namespace {

/// A clip path may itself be clipped; more of them are no drawing.
constexpr std::size_t kMostClips = 16;

} // namespace

Box ArtBuilder::localBounds(const Art& art, const Matrix& matrix) const {
    Box box;
    const std::optional<AIDoubleRect> bounds = boundsOf(art, kNoStrokeBounds);
    const std::optional<Matrix> back = inverse(matrix);
    if (!bounds || !back) return box;
    for (const double x : {bounds->left, bounds->right})
        for (const double y : {bounds->top, bounds->bottom})
            box.add(*back * Point{x + offset_.x, -y + offset_.y});
    return box;
}

/// The union of the outlines of what a clip path holds, in the coordinates of the drawing. Nothing
/// when it holds what has no outline.
std::optional<Outline> ArtBuilder::clipOutline(const Element& clipPath, const Context& context,
                                               bool& evenOdd) {
    Outline outline;
    for (const NodeIndex node : childElements(state_.tree, clipPath.node())) {
        const Element child{state_.tree, node};
        const Pushed pushed{state_.path, child.selectorName()};
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
            inner->matrix = inner->matrix * Matrix{1,
                                                   0,
                                                   0,
                                                   1,
                                                   child.length("x", inner->viewport.width, 0),
                                                   child.length("y", inner->viewport.height, 0)};
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
        evenOdd = evenOdd || inner->style.clipEvenOdd;
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

void ArtBuilder::keepClipAsText(Art& art, const std::string& clipPath) {
    ArtStyle& style = art.write().style.write();
    const auto* const former = dynamic_cast<const StyleExtras*>(style.foreign.get());
    auto extras = std::make_shared<StyleExtras>();
    if (former != nullptr) extras->properties = former->properties;
    extras->properties["clip-path"] = "url(#" + clipPath + ")";
    style.foreign = std::move(extras);
}

bool ArtBuilder::clip(Art& group, const std::string& clipPath, const Context& context,
                      const Box& bounds) {
    std::vector<std::pair<Outline, bool>> masks;
    for (std::string id = clipPath; !id.empty() && masks.size() < kMostClips;) {
        const NodeIndex node = state_.tree.find(id);
        if (node == kNoNode || state_.tree.at(node).name != "clipPath") return false;
        const Element element{state_.tree, node};
        state_.countReference(element);
        Context start{Style{}, context.matrix, context.viewport};
        if (element.get("clipPathUnits") == "objectBoundingBox") {
            if (bounds.empty) return false;
            start.matrix = start.matrix * Matrix{bounds.max.x - bounds.min.x,
                                                 0,
                                                 0,
                                                 bounds.max.y - bounds.min.y,
                                                 bounds.min.x,
                                                 bounds.min.y};
        }
        const auto own = std::make_unique<Context>(contextOf(element, start));
        bool evenOdd = false;
        auto outline = clipOutline(element, *own, evenOdd);
        if (!outline) return false;
        masks.emplace_back(std::move(*outline), evenOdd);
        id = own->style.clipPath;
    }
    group.write().clipped = true;
    for (auto& [outline, evenOdd] : masks) {
        ArtStyle style;
        style.path.evenodd = evenOdd ? 1 : 0;
        Art& mask = addOutline(std::move(outline), group, Matrix{}, style);
        mask.write().attributes |= static_cast<std::uint32_t>(kArtIsClipMask);
    }
    return true;
}

} // namespace easel::svg
