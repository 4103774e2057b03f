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

/// What painted shapes carry along although it is not understood.
std::shared_ptr<const StyleExtras> extrasOf(const Style& style) {
    Properties properties = style.others;
    if (style.inherited)
        for (const auto& [property, value] : *style.inherited)
            if (!isUnderstood(property) && !isTextProperty(property))
                properties.try_emplace(property, value);
    if (properties.empty()) return nullptr;
    auto extras = std::make_shared<StyleExtras>();
    extras->properties = std::move(properties);
    return extras;
}

AIRealMatrix floatMatrix(const std::vector<double>& n) {
    return {narrowed(n[0]), narrowed(n[1]), narrowed(n[2]),
            narrowed(n[3]), narrowed(n[4]), narrowed(n[5])};
}

/// The matrix that we wrote, unless another program has since moved the gradient or the shape: what
/// others understand has the last word.
AIRealMatrix derivedMatrix(const Element& derived, const Definition& definition,
                           const AIRealMatrix& written, const Matrix& shape, Point offset) {
    const std::string transform =
        derived.get(derived.name() == "pattern" ? "patternTransform" : "gradientTransform");
    const bool asWritten =
        transform == formatTransform(derivedTransform(definition, written, offset));
    if (asWritten && shape == Matrix{}) return written;
    Matrix matrix = fromSoft(written, offset);
    const auto own = inverse(derivedTransform(definition, toSoft(Matrix{}, offset), offset));
    const auto moved = parseTransform(transform);
    if (!asWritten && own && moved) matrix = *moved * *own;
    return toSoft(shape * matrix, offset);
}

Matrix boundsMatrix(const Box& bounds) {
    return {
        bounds.max.x - bounds.min.x, 0, 0, bounds.max.y - bounds.min.y, bounds.min.x, bounds.min.y};
}

} // namespace

ArtStyle ArtBuilder::styleFor(const Context& context, const Outline& outline) {
    const Style& style = context.style;
    const auto scaling = style.others.find("vector-effect");
    const bool fixedStroke =
        scaling != style.others.end() && scaling->second == "non-scaling-stroke";
    const double scale = fixedStroke ? 1.0 : meanScale(context.matrix);
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
    result.foreign = extrasOf(style);
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
    if (paint.kind == Paint::Kind::Server) {
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
        if (!paint.spare) return false;
    }
    if (paint.kind == Paint::Kind::None) return false;
    color = rgbColor(paint.colour.red, paint.colour.green, paint.colour.blue);
    return true;
}

std::optional<ArtBuilder::ServerUse>
ArtBuilder::serverFor(const std::string& id, const Context& context, const Outline& outline) {
    const AIRealMatrix plain = toSoft(context.matrix, offset_);
    // What is not understood is named by its id alone, so that it has no matrix of its own.
    const AIRealMatrix unplaced = toSoft(Matrix{}, offset_);
    const NodeIndex node = state_.tree.find(id);
    if (node == kNoNode)
        return ServerUse{&definition(Definition::Kind::Gradient, id, nullptr, {}), unplaced};
    const Element element{state_.tree, node};
    state_.countReference(element);
    if (isDerived(state_.tree, element)) return derivedUse(element, context, outline);
    const Box bounds = boundsOf(outline);
    if (element.name() == "pattern") return patternUse(element, nullptr, context, bounds);
    const auto gradient = gradientContent(state_, node, context.viewport);
    Definition& known = definition(Definition::Kind::Gradient, id, gradient, {});
    if (!gradient) return ServerUse{&known, unplaced};
    if (!gradient->overBounds) return ServerUse{&known, plain};
    const Matrix overBounds = boundsMatrix(bounds);
    if (bounds.empty || !inverse(overBounds)) return std::nullopt; // SVG: such a shape has no paint
    return ServerUse{&known, toSoft(context.matrix * overBounds, offset_)};
}

/// Our own element: the matrix stands beside the transform that says the same to others.
ArtBuilder::ServerUse ArtBuilder::derivedUse(const Element& derived, const Context& context,
                                             const Outline& outline) {
    const std::string source = derived.get("easel:source");
    const Element base{state_.tree, state_.tree.find(source)};
    ServerUse use;
    if (base.name() == "pattern") {
        use = patternUse(base, &derived, context, boundsOf(outline));
    } else {
        const auto gradient = gradientContent(state_, base.node(), context.viewport);
        use.definition = &definition(Definition::Kind::Gradient, source, gradient, {});
        use.matrix = toSoft(Matrix{}, offset_);
        if (!gradient) return use;
    }
    const NumberList numbers = parseNumbers(derived.get("easel:matrix"));
    if (numbers.numbers.size() == 6)
        use.matrix = derivedMatrix(derived, *use.definition, floatMatrix(numbers.numbers),
                                   context.matrix, offset_);
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
