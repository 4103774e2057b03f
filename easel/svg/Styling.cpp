#include "easel/svg/ArtBuilder.h"
#include "easel/svg/Ink.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PaintServers.h"
#include "easel/svg/ViewBox.h"

#include <algorithm>

namespace easel::svg {
namespace {

AIReal narrowed(double value) { return static_cast<AIReal>(value); }

constexpr AILineCap kCaps[] = {kAIButtCap, kAIRoundCap, kAIProjectingCap};
constexpr AILineJoin kJoins[] = {kAIMiterJoin, kAIRoundJoin, kAIBevelJoin};

/// The host's record holds six parts of a dash pattern; a longer one stands beside it.
void setDashes(const Style& style, double scale, ArtStyle& target) {
    AIDashStyle& dash = target.path.stroke.dash;
    dash.offset = narrowed(style.dashOffset * scale);
    const std::size_t held = std::min(style.dashes.size(), std::size(dash.array));
    dash.length = static_cast<ai::int16>(held);
    for (std::size_t i = 0; i < held; ++i)
        dash.array[i] = narrowed(style.dashes[i] * scale);
    if (style.dashes.size() <= held) return;
    for (const double part : style.dashes)
        target.longDash.push_back(narrowed(part * scale));
}

/// Properties whose values are measured in the user space.
constexpr std::string_view kSpatial[] = {"filter",     "mask",       "clip-path",   "marker",
                                         "marker-end", "marker-mid", "marker-start"};

} // namespace

std::shared_ptr<Effects> ArtBuilder::effectsOf(const Element& element,
                                               const Context& context) const {
    const Style& style = context.style;
    auto effects = std::make_shared<Effects>();
    Properties& properties = effects->properties;
    const bool isLeaf = isShape(element.name());
    properties = style.others;
    if (const auto shape = style.unknown.find("clip-path"); shape != style.unknown.end())
        properties.insert(*shape);
    if (isLeaf && style.inherited)
        for (const auto& [property, value] : *style.inherited)
            if (!propertyNamed(property).understood && !propertyNamed(property).text)
                properties.try_emplace(property, value);
    effects->spatial = std::ranges::any_of(
        kSpatial, [&](std::string_view each) { return properties.contains(std::string{each}); });
    const bool isStroked = isLeaf && style.stroke.kind != Paint::Kind::None;
    if (isStroked && !isConformal(context.matrix)) effects->spatial = true;
    for (const NodeIndex child :
         isLeaf ? childElements(state_.tree, element.node()) : std::vector<NodeIndex>{}) {
        const std::string name{state_.tree.at(child).name};
        if (name != "title" && name != "desc" && name != "metadata") effects->lost = name;
    }
    if (element.name() == "a" || element.name() == "switch") effects->lost = element.name();
    if (!effects->lost.empty())
        effects->lost =
            std::to_string(element.line()) + ": copies are written without <" + effects->lost + '>';
    if (properties.empty() && !effects->spatial && effects->lost.empty()) return nullptr;
    effects->space = softMatrix(context.matrix, offset_);
    return effects;
}

ArtStyle ArtBuilder::styleFor(const Element& element, const Context& context,
                              const Outline& outline) {
    const Style& style = context.style;
    auto effects = effectsOf(element, context);
    const double scale = effects && effects->hasFixedStroke() ? 1.0 : meanScale(context.matrix);
    ArtStyle result;
    result.opacity = narrowed(style.opacity);
    result.fillOpacity = narrowed(style.fillOpacity * style.fill.colour.alpha);
    result.strokeOpacity = narrowed(style.strokeOpacity * style.stroke.colour.alpha);
    AIPathStyle& path = result.path;
    path.evenodd = style.evenOdd ? 1 : 0;
    const bool fills = setPaint(style.fill, context, outline, path.fill.color,
                                result.fillDefinition, result.fillMatrix);
    path.fillPaint = fills ? 1 : 0;
    const bool strokes = setPaint(style.stroke, context, outline, path.stroke.color,
                                  result.strokeDefinition, result.strokeMatrix);
    path.strokePaint = strokes ? 1 : 0;
    path.stroke.width = narrowed(style.strokeWidth * scale);
    path.stroke.miterLimit = narrowed(style.miterLimit);
    path.stroke.cap = kCaps[static_cast<std::size_t>(style.cap)];
    path.stroke.join = kJoins[static_cast<std::size_t>(style.join)];
    setDashes(style, scale, result);
    result.foreign = std::move(effects);
    return result;
}

void ArtBuilder::readInks(const Element& element, ArtStyle& style) {
    const auto read = [&](const char* attribute, AIColor& color) {
        if (!element.has(attribute)) return;
        const auto ink = parseInk(element.get(attribute));
        // Who has changed the colour since, without knowing of the ink, has the last word.
        if (ink && plainColour(*ink) == plainColour(color)) color = *ink;
    };
    read("easel:fill-ink", style.path.fill.color);
    read("easel:stroke-ink", style.path.stroke.color);
}

/// True when something is painted.
bool ArtBuilder::setPaint(const Paint& paint, const Context& context, const Outline& outline,
                          AIColor& color, const Definition*& definition, AIRealMatrix& matrix) {
    const bool isThere = state_.tree.find(paint.server) != kNoNode;
    if (paint.kind == Paint::Kind::Server && isThere) {
        const auto use = serverFor(paint.server, context, outline);
        if (use) {
            definition = use->definition;
            matrix = use->matrix;
            const bool isPattern = definition->kind() == Definition::Kind::Pattern;
            color = {};
            color.kind = isPattern ? kPattern : kGradient;
            if (isPattern)
                color.c.p.pattern = static_cast<AIPatternHandle>(definition->handle());
            else
                color.c.b.gradient = static_cast<AIGradientHandle>(definition->handle());
            return true;
        }
    }
    if (paint.kind == Paint::Kind::None) return false;
    if (paint.kind == Paint::Kind::Server && !paint.spare) return false;
    color = rgbColor(paint.colour.red, paint.colour.green, paint.colour.blue);
    return true;
}

std::optional<ArtBuilder::ServerUse>
ArtBuilder::serverFor(const std::string& id, const Context& context, const Outline& outline) {
    const AIRealMatrix plain = toSoft(context.matrix, offset_);
    // What is not understood is named by its id alone, so that it has no matrix of its own.
    const AIRealMatrix unplaced = toSoft(Matrix{}, offset_);
    const NodeIndex node = state_.tree.find(id);
    const Element element{state_.tree, node};
    state_.countReference(element);
    if (isDerived(state_.tree, element)) return derivedUse(element, context, outline);
    const Box bounds = boundsOf(outline);
    if (element.name() == "pattern") return patternUse(element, nullptr, context, bounds);
    const auto gradient = gradientContent(state_, node, context.viewport);
    Definition& known = definition(Definition::Kind::Gradient, id, gradient, {});
    if (!gradient) return ServerUse{&known, unplaced};
    if (!gradient->overBounds) return ServerUse{&known, plain};
    const Matrix overBounds = fromUnitSquare(bounds);
    if (bounds.empty || !inverse(overBounds)) return std::nullopt; // SVG: such a shape has no paint
    return ServerUse{&known, toSoft(context.matrix * overBounds, offset_)};
}

/// Its transform is that of the element that it comes from, after what brings the definition to
/// where this one art has it.
ArtBuilder::ServerUse ArtBuilder::derivedUse(const Element& derived, const Context& context,
                                             const Outline& outline) {
    const std::string source = derived.get("easel:source");
    const Element base{state_.tree, state_.tree.find(source)};
    const bool isPattern = base.name() == "pattern";
    ServerUse use{nullptr, toSoft(Matrix{}, offset_)};
    if (isPattern) {
        use = patternUse(base, &derived, context, boundsOf(outline));
    } else {
        const auto gradient = gradientContent(state_, base.node(), context.viewport);
        use.definition = &definition(Definition::Kind::Gradient, source, gradient, {});
        if (!gradient) return use;
    }
    const auto written =
        parseTransform(derived.get(isPattern ? "patternTransform" : "gradientTransform"));
    const auto own = inverse(ownTransform(*use.definition));
    if (written && own) use.matrix = toSoft(context.matrix * *written * *own, offset_);
    return use;
}

ArtBuilder::ServerUse ArtBuilder::patternUse(const Element& element, const Element* derived,
                                             const Context& context, const Box& bounds) {
    std::vector<Element> chain = referenceChain(state_.tree, element.node());
    auto pattern = patternTile(chain, context.viewport, bounds);
    if (derived != nullptr && pattern->resolved) {
        // The tile was laid out for the shape as it was; the shape may have changed since.
        const Matrix transform = pattern->transform;
        std::vector<Element> own = chain;
        own.insert(own.begin(), *derived);
        pattern = patternTile(own, context.viewport, bounds);
        pattern->transform = transform;
        pattern->resolved = true;
        if (const auto box = parseViewBox(derived->get("viewBox")))
            pattern->viewBoxSize = box->size;
    }
    pattern->source = element.get("id");
    const auto shows = [&](const Element& link) {
        return !childElements(state_.tree, link.node()).empty();
    };
    const auto content = std::ranges::find_if(chain, shows);
    if (content != chain.end()) {
        const Context plain{Style{}, Matrix{}, context.viewport};
        pattern->drawing = drawingOf(element, content->node(), plain, "pattern", Entered::Content);
    }
    std::string variant;
    if (pattern->resolved)
        for (const double number : {pattern->tileCorner.x, pattern->tileCorner.y,
                                    pattern->tileSize.x, pattern->tileSize.y})
            variant += formatNumber(number) + ' ';
    const AIRealMatrix matrix = toSoft(context.matrix, offset_);
    return {&definition(Definition::Kind::Pattern, pattern->source, pattern, variant), matrix};
}

Definition& ArtBuilder::definition(Definition::Kind kind, const std::string& id,
                                   std::shared_ptr<const ForeignContent> content,
                                   const std::string& variant) {
    const auto [place, isNew] = definitions_.try_emplace({id, variant}, nullptr);
    if (isNew) {
        place->second = &document_.addDefinition(kind, id);
        place->second->content = std::move(content);
    }
    return *place->second;
}

} // namespace easel::svg
