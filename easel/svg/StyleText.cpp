#include "easel/svg/StyleText.h"

#include "easel/svg/Ink.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PaintServers.h"
#include "easel/svg/XmlTree.h"

#include <algorithm>

namespace easel::svg {
namespace {

constexpr const char* kCaps[] = {"butt", "round", "square"};
constexpr int kHeldDashes = std::size(AIDashStyle{}.array);
constexpr const char* kJoins[] = {"miter", "round", "bevel"};

std::string paintText(bool paints, const AIColor& color, const Definition* definition,
                      const AIRealMatrix& matrix, const ServerText& server) {
    if (!paints) return "none";
    const bool refers = color.kind == kGradient || color.kind == kPattern;
    if (refers && definition != nullptr) return server(*definition, matrix);
    const auto colour = plainColour(color);
    return colour ? formatColour(*colour) : "none";
}

std::string dashText(const ArtStyle& style, const UserSpace& space) {
    const AIDashStyle& dash = style.path.stroke.dash;
    std::string text;
    const auto append = [&](AIReal part) {
        if (!text.empty()) text += ' ';
        text += space.length(part);
    };
    if (!style.longDash.empty())
        for (const AIReal part : style.longDash)
            append(part);
    else
        for (int i = 0; i < std::min<int>(dash.length, kHeldDashes); ++i)
            append(dash.array[i]);
    return text.empty() ? "none" : text;
}

void appendNumberAttribute(std::string& text, std::string_view name, double value) {
    text += attributeText(name, formatNumber(value));
}

void appendGradient(std::string& text, const GradientContent& gradient) {
    if (gradient.kind == GradientContent::Kind::Linear) {
        appendNumberAttribute(text, "x1", gradient.start.x);
        appendNumberAttribute(text, "y1", gradient.start.y);
        appendNumberAttribute(text, "x2", gradient.end.x);
        appendNumberAttribute(text, "y2", gradient.end.y);
    } else {
        appendNumberAttribute(text, "cx", gradient.end.x);
        appendNumberAttribute(text, "cy", gradient.end.y);
        appendNumberAttribute(text, "r", gradient.radius);
        appendNumberAttribute(text, "fx", gradient.start.x);
        appendNumberAttribute(text, "fy", gradient.start.y);
        if (gradient.focalRadius > 0) appendNumberAttribute(text, "fr", gradient.focalRadius);
    }
    text += " gradientUnits=\"userSpaceOnUse\"";
}

void appendPattern(std::string& text, const PatternContent& pattern) {
    appendNumberAttribute(text, "x", pattern.tileCorner.x);
    appendNumberAttribute(text, "y", pattern.tileCorner.y);
    appendNumberAttribute(text, "width", pattern.tileSize.x);
    appendNumberAttribute(text, "height", pattern.tileSize.y);
    text += " patternUnits=\"userSpaceOnUse\"";
    if (pattern.viewBoxSize == Point{}) return;
    text += " preserveAspectRatio=\"none\"";
    text += attributeText("viewBox", "0 0 " + formatNumber(pattern.viewBoxSize.x) + ' ' +
                                         formatNumber(pattern.viewBoxSize.y));
}

} // namespace

std::string DerivedServers::newId(const std::string& family, int& counter) const {
    for (;;) {
        std::string id = family + std::to_string(++counter);
        const auto bears = [&](const auto& definition) { return definition->id() == id; };
        if (tree_.find(id) == kNoNode && std::ranges::none_of(document_.definitions(), bears))
            return id;
    }
}

/// Others see a gradient or pattern like any other; we see from which element it comes.
std::string DerivedServers::reference(const Definition& definition, const AIRealMatrix& matrix,
                                      const UserSpace& space) {
    const auto* const gradient = dynamic_cast<const GradientContent*>(definition.content.get());
    const auto* const pattern = dynamic_cast<const PatternContent*>(definition.content.get());
    const bool dependsOnBounds =
        (gradient != nullptr && gradient->overBounds) || (pattern != nullptr && pattern->resolved);
    const bool understood = gradient != nullptr || pattern != nullptr;
    const Matrix inSpace = space.transformTo(matrixOf(matrix));
    if (!understood || !space.isPlane() || (!dependsOnBounds && inSpace == Matrix{}))
        return "url(#" + definition.id() + ")";
    std::string text = attributeText("xlink:href", '#' + definition.id());
    if (gradient != nullptr)
        appendGradient(text, *gradient);
    else
        appendPattern(text, *pattern);
    text += attributeText(pattern != nullptr ? "patternTransform" : "gradientTransform",
                          formatTransform(inSpace * ownTransform(definition)));
    text += attributeText("easel:derived", "true");
    text += attributeText("easel:source", definition.id());
    std::string& id = ids_[text];
    if (id.empty()) {
        id = newId("easel-paint-", counter_);
        const char* const tag = pattern != nullptr ? "pattern"
                                : gradient->kind == GradientContent::Kind::Linear
                                    ? "linearGradient"
                                    : "radialGradient";
        elements_ +=
            "\n    <" + std::string{tree_.prefix()} + tag + attributeText("id", id) + text + "/>";
    }
    return "url(#" + id + ")";
}

std::vector<PropertyText> styleText(const ArtStyle& style, const UserSpace& space,
                                    const ServerText& server) {
    enum Kind { kFill, kFillRule, kStroke, kPen, kDash, kWhole };
    const AIPathStyle& path = style.path;
    const AIStrokeStyle& stroke = path.stroke;
    const Effects* const effects = effectsIn(style);
    const bool fixed = effects != nullptr && effects->hasFixedStroke();
    const UserSpace screen{Matrix{}, Point{}};
    const UserSpace& pen = fixed ? screen : space;
    return {
        {"fill",
         paintText(path.fillPaint != 0, path.fill.color, style.fillDefinition, style.fillMatrix,
                   server),
         kFill},
        {"fill-opacity", formatNumber(style.fillOpacity), kFill},
        {"fill-rule", path.evenodd != 0 ? "evenodd" : "nonzero", kFillRule},
        {"stroke",
         paintText(path.strokePaint != 0, stroke.color, style.strokeDefinition, style.strokeMatrix,
                   server),
         kStroke},
        {"stroke-opacity", formatNumber(style.strokeOpacity), kStroke},
        {"stroke-width", pen.length(stroke.width), kPen},
        {"stroke-linecap", kCaps[std::clamp<int>(stroke.cap, 0, 2)], kPen},
        {"stroke-linejoin", kJoins[std::clamp<int>(stroke.join, 0, 2)], kPen},
        {"stroke-miterlimit", formatNumber(stroke.miterLimit), kPen},
        {"stroke-dasharray", dashText(style, pen), kDash},
        {"stroke-dashoffset", pen.length(stroke.dash.offset), kDash},
        {"opacity", formatNumber(style.opacity), kWhole},
    };
}

} // namespace easel::svg
