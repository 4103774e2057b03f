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
                      const AIRealMatrix& matrix, DerivedServers& servers) {
    if (!paints) return "none";
    const bool refers = color.kind == kGradient || color.kind == kPattern;
    if (refers && definition != nullptr) return servers.reference(*definition, matrix);
    const auto colour = plainColour(color);
    return colour ? formatColour(*colour) : "none";
}

std::string dashText(const ArtStyle& style) {
    const AIDashStyle& dash = style.path.stroke.dash;
    std::string text;
    const auto append = [&](AIReal part) {
        if (!text.empty()) text += ' ';
        appendNumber(text, part);
    };
    if (!style.longDash.empty())
        for (const AIReal part : style.longDash)
            append(part);
    else
        for (int i = 0; i < std::min<int>(dash.length, kHeldDashes); ++i)
            append(dash.array[i]);
    return text.empty() ? "none" : text;
}

void appendAttribute(std::string& text, std::string_view name, std::string_view value) {
    text += ' ';
    text += name;
    text += "=\"";
    text += escaped(value);
    text += '"';
}

void appendNumberAttribute(std::string& text, std::string_view name, double value) {
    appendAttribute(text, name, formatNumber(value));
}

void appendGradient(std::string& text, const GradientContent& gradient) {
    const auto append = [&](const char* name, double value) {
        appendNumberAttribute(text, name, value);
    };
    if (gradient.kind == GradientContent::Kind::Linear) {
        append("x1", gradient.start.x);
        append("y1", gradient.start.y);
        append("x2", gradient.end.x);
        append("y2", gradient.end.y);
    } else {
        append("cx", gradient.end.x);
        append("cy", gradient.end.y);
        append("r", gradient.radius);
        append("fx", gradient.start.x);
        append("fy", gradient.start.y);
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
    appendAttribute(text, "viewBox",
                    "0 0 " + formatNumber(pattern.viewBoxSize.x) + ' ' +
                        formatNumber(pattern.viewBoxSize.y));
}

} // namespace

DerivedServers::DerivedServers(const Document& document, Point offset) : offset_(offset) {
    if (const DrawingSource* const source = sourceOf(document))
        reserved_.insert(source->reservedIds.begin(), source->reservedIds.end());
    for (const auto& definition : document.definitions())
        reserved_.insert(definition->id());
}

std::string DerivedServers::reference(const Definition& definition, const AIRealMatrix& matrix) {
    const auto* const gradient = dynamic_cast<const GradientContent*>(definition.content.get());
    const auto* const pattern = dynamic_cast<const PatternContent*>(definition.content.get());
    const bool dependsOnBounds =
        (gradient != nullptr && gradient->overBounds) || (pattern != nullptr && pattern->resolved);
    const bool understood = gradient != nullptr || pattern != nullptr;
    if (!understood || (!dependsOnBounds && fromSoft(matrix, offset_) == Matrix{}))
        return "url(#" + definition.id() + ")";
    const Place place{&definition, matrix.a, matrix.b, matrix.c, matrix.d, matrix.tx, matrix.ty};
    std::string& id = ids_[place];
    if (id.empty()) {
        id = newId("easel-paint-", counter_);
        appendElement(id, definition, matrix);
    }
    return "url(#" + id + ")";
}

std::string DerivedServers::newId(const char* family, int& counter) const {
    for (;;) {
        std::string id = family + std::to_string(++counter);
        if (!reserved_.contains(id)) return id;
    }
}

/// Others see a gradient or pattern like any other; we read the definition that it comes from, and
/// the matrix with all its digits.
void DerivedServers::appendElement(const std::string& id, const Definition& definition,
                                   const AIRealMatrix& matrix) {
    const auto* const gradient = dynamic_cast<const GradientContent*>(definition.content.get());
    const auto* const pattern = dynamic_cast<const PatternContent*>(definition.content.get());
    const char* const tag = pattern != nullptr                                ? "pattern"
                            : gradient->kind == GradientContent::Kind::Linear ? "linearGradient"
                                                                              : "radialGradient";
    elements_ += "\n    <";
    elements_ += tag;
    appendAttribute(elements_, "id", id);
    appendAttribute(elements_, "xlink:href", '#' + definition.id());
    if (gradient != nullptr)
        appendGradient(elements_, *gradient);
    else
        appendPattern(elements_, *pattern);
    appendAttribute(elements_, pattern != nullptr ? "patternTransform" : "gradientTransform",
                    formatTransform(derivedTransform(definition, matrix, offset_)));
    appendAttribute(elements_, "easel:derived", "true");
    appendAttribute(elements_, "easel:source", definition.id());
    std::string numbers;
    for (const AIReal entry : {matrix.a, matrix.b, matrix.c, matrix.d, matrix.tx, matrix.ty}) {
        if (!numbers.empty()) numbers += ' ';
        appendNumber(numbers, entry);
    }
    appendAttribute(elements_, "easel:matrix", numbers);
    elements_ += "/>";
}

std::vector<PropertyText> styleText(const ArtStyle& style, Explicit all, DerivedServers& servers) {
    std::vector<PropertyText> properties;
    const auto add = [&](const char* name, std::string value, std::string_view standard) {
        if (all == Explicit::Yes || value != standard)
            properties.push_back({name, std::move(value)});
    };
    const AIPathStyle& path = style.path;
    const AIStrokeStyle& stroke = path.stroke;
    add("fill",
        paintText(path.fillPaint != 0, path.fill.color, style.fillDefinition, style.fillMatrix,
                  servers),
        "#000000");
    add("fill-opacity", formatNumber(style.fillOpacity), "1");
    add("fill-rule", path.evenodd != 0 ? "evenodd" : "nonzero", "nonzero");
    add("stroke",
        paintText(path.strokePaint != 0, stroke.color, style.strokeDefinition, style.strokeMatrix,
                  servers),
        "none");
    add("stroke-opacity", formatNumber(style.strokeOpacity), "1");
    add("stroke-width", formatNumber(stroke.width), "1");
    add("stroke-linecap", kCaps[std::clamp<int>(stroke.cap, 0, 2)], "butt");
    add("stroke-linejoin", kJoins[std::clamp<int>(stroke.join, 0, 2)], "miter");
    add("stroke-miterlimit", formatNumber(stroke.miterLimit), "4");
    add("stroke-dasharray", dashText(style), "none");
    add("stroke-dashoffset", formatNumber(stroke.dash.offset), "0");
    add("opacity", formatNumber(style.opacity), "1");
    return properties;
}

} // namespace easel::svg
