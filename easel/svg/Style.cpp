#include "easel/svg/Style.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <optional>

namespace easel::svg {
namespace {

/// A dash pattern with more parts is no pattern any more.
constexpr std::size_t kMostDashes = 1024;

/// In alphabetical order, for a binary search.
constexpr Property kProperties[] = {
    {"alignment-baseline", false, false, true, ""},
    {"baseline-shift", false, false, true, ""},
    {"clip-path", true, false, false, "none"},
    {"clip-rule", true, true, false, "nonzero"},
    {"color", true, true, false, "black"},
    {"color-interpolation", false, true, false, "sRGB"},
    {"color-interpolation-filters", false, true, false, "linearRGB"},
    {"color-rendering", false, true, false, "auto"},
    {"cursor", false, true, false, ""},
    {"direction", false, true, true, "ltr"},
    {"display", true, false, false, "inline"},
    {"dominant-baseline", false, true, true, "auto"},
    {"enable-background", false, false, false, ""},
    {"fill", true, true, false, "#000000"},
    {"fill-opacity", true, true, false, "1"},
    {"fill-rule", true, true, false, "nonzero"},
    {"filter", false, false, false, "none"},
    {"font", false, true, true, ""},
    {"font-family", false, true, true, ""},
    {"font-feature-settings", false, true, true, ""},
    {"font-kerning", false, true, true, ""},
    {"font-size", false, true, true, "medium"},
    {"font-size-adjust", false, true, true, ""},
    {"font-stretch", false, true, true, "normal"},
    {"font-style", false, true, true, "normal"},
    {"font-variant", false, true, true, "normal"},
    {"font-weight", false, true, true, "normal"},
    {"glyph-orientation-vertical", false, true, true, ""},
    {"image-rendering", false, true, false, "auto"},
    {"isolation", false, false, false, ""},
    {"kerning", false, true, true, ""},
    {"letter-spacing", false, true, true, "normal"},
    {"line-height", false, true, true, ""},
    {"marker", false, true, false, "none"},
    {"marker-end", false, true, false, "none"},
    {"marker-mid", false, true, false, "none"},
    {"marker-start", false, true, false, "none"},
    {"mask", false, false, false, "none"},
    {"mix-blend-mode", false, false, false, "normal"},
    {"opacity", true, false, false, "1"},
    {"overflow", false, false, false, ""},
    {"paint-order", false, true, false, "normal"},
    {"pointer-events", false, true, false, ""},
    {"shape-rendering", false, true, false, "auto"},
    {"stop-color", true, false, false, "black"},
    {"stop-opacity", true, false, false, "1"},
    {"stroke", true, true, false, "none"},
    {"stroke-dasharray", true, true, false, "none"},
    {"stroke-dashoffset", true, true, false, "0"},
    {"stroke-linecap", true, true, false, "butt"},
    {"stroke-linejoin", true, true, false, "miter"},
    {"stroke-miterlimit", true, true, false, "4"},
    {"stroke-opacity", true, true, false, "1"},
    {"stroke-width", true, true, false, "1"},
    {"text-align", false, true, true, ""},
    {"text-anchor", false, true, true, "start"},
    {"text-decoration", false, false, true, ""},
    {"text-indent", false, true, true, ""},
    {"text-rendering", false, true, true, ""},
    {"text-transform", false, true, true, ""},
    {"unicode-bidi", false, false, true, ""},
    {"vector-effect", false, false, false, "none"},
    {"visibility", true, true, false, "visible"},
    {"white-space", false, true, true, ""},
    {"word-spacing", false, true, true, "normal"},
    {"writing-mode", false, true, true, ""},
};
static_assert(std::ranges::is_sorted(kProperties, {}, &Property::name));
constexpr Property kNoProperty;

std::optional<Paint> parsePaint(std::string_view text, const Colour& current) {
    text = trimmed(text);
    if (text == "none") return Paint{};
    if (equalIgnoringCase(text, "currentColor"))
        return Paint{Paint::Kind::Plain, current, false, {}};
    if (const std::string id = referenceIn(text); !id.empty()) {
        Paint paint{Paint::Kind::Server, {}, false, id};
        const std::size_t end = text.find(')');
        const std::string_view spare =
            end == std::string_view::npos ? std::string_view{} : trimmed(text.substr(end + 1));
        if (const auto colour = parseColour(spare)) {
            paint.colour = *colour;
            paint.spare = true;
        }
        return paint;
    }
    if (const auto colour = parseColour(text)) return Paint{Paint::Kind::Plain, *colour, false, {}};
    return std::nullopt;
}

struct Context {
    Style& style;
    const Style& parent;
    std::string_view value;
    double viewport;

    [[nodiscard]] std::optional<double> length() const {
        return parseLength(value, viewport, style.font.size);
    }
};

// Setters: false for a value that is not understood, which changes nothing.

template <typename T> bool assign(T& target, const std::optional<T>& value) {
    if (value) target = *value;
    return value.has_value();
}

bool setFraction(double& target, std::string_view value) {
    return assign(target, parseFraction(value));
}

template <typename T> struct Word {
    std::string_view text;
    T value;
};

template <typename T, std::size_t N>
bool setWord(T& target, std::string_view value, const Word<T> (&words)[N]) {
    const auto* const word = std::ranges::find(words, value, &Word<T>::text);
    if (word == std::end(words)) return false;
    target = word->value;
    return true;
}

bool setDashes(const Context& c) {
    if (c.value == "none") {
        c.style.dashes.clear();
        return true;
    }
    std::vector<double> dashes;
    double sum = 0.0;
    for (Cursor cursor{c.value}; !cursor.atEnd(); cursor.skipSeparators()) {
        const std::string_view rest = cursor.rest();
        const std::size_t end = std::min(rest.find_first_of(" ,\t\r\n"), rest.size());
        const auto length = parseLength(rest.substr(0, end), c.viewport, c.style.font.size);
        if (!length || *length < 0 || dashes.size() >= kMostDashes) return false;
        dashes.push_back(*length);
        sum += *length;
        cursor = Cursor{rest.substr(end)};
    }
    if (dashes.size() % 2 == 1) dashes.insert(dashes.end(), dashes.begin(), dashes.end());
    c.style.dashes = sum > 0 ? dashes : std::vector<double>{};
    return true;
}

bool setFontSize(const Context& c) {
    constexpr Word<double> kSizes[] = {{"xx-small", 9}, {"x-small", 10}, {"small", 13},
                                       {"medium", 16},  {"large", 18},   {"x-large", 24},
                                       {"xx-large", 32}};
    const double parentSize = c.parent.font.size;
    std::optional<double> size = parseLength(c.value, parentSize, parentSize);
    if (c.value == "larger") size = 1.2 * parentSize;
    if (c.value == "smaller") size = parentSize / 1.2;
    double known = 0.0;
    if (setWord(known, c.value, kSizes)) size = known;
    if (!size || !(*size >= 0 && *size <= kLargestCoordinate)) return false;
    c.style.font.size = *size;
    return true;
}

bool setFontFamily(const Context& c) {
    std::string_view first = trimmed(c.value.substr(0, c.value.find(',')));
    if (first.size() >= 2 && (first.front() == '\'' || first.front() == '"'))
        first = first.substr(1, first.size() - 2);
    if (!first.empty()) c.style.font.family = first;
    return true;
}

bool setStrokeWidth(const Context& c) {
    const auto width = c.length();
    if (!width || !(*width >= 0 && *width <= kLargestCoordinate)) return false;
    c.style.strokeWidth = *width;
    return true;
}

bool setClipPath(const Context& c) {
    c.style.clipPath = referenceIn(c.value);
    return !c.style.clipPath.empty() || c.value == "none";
}

bool setPaint(Paint& target, const Context& c) {
    return assign(target, parsePaint(c.value, c.style.color));
}

constexpr Word<bool> kRules[] = {{"nonzero", false}, {"evenodd", true}};
constexpr Word<Cap> kCaps[] = {{"butt", Cap::Butt}, {"round", Cap::Round}, {"square", Cap::Square}};
constexpr Word<Join> kJoins[] = {
    {"miter", Join::Miter}, {"round", Join::Round}, {"bevel", Join::Bevel}};
constexpr Word<bool> kWeights[] = {
    {"normal", false}, {"bold", true}, {"bolder", true}, {"lighter", false}};
constexpr Word<bool> kSlants[] = {{"normal", false}, {"italic", true}, {"oblique", true}};
constexpr Word<TextAnchor> kAnchors[] = {
    {"start", TextAnchor::Start}, {"middle", TextAnchor::Middle}, {"end", TextAnchor::End}};
constexpr Word<bool> kVisibility[] = {{"visible", true}, {"hidden", false}, {"collapse", false}};

struct Setter {
    std::string_view property;
    bool (*set)(const Context&);
};
constexpr Setter kSetters[] = {
    {"color", [](const Context& c) { return assign(c.style.color, parseColour(c.value)); }},
    {"fill", [](const Context& c) { return setPaint(c.style.fill, c); }},
    {"stroke", [](const Context& c) { return setPaint(c.style.stroke, c); }},
    {"fill-opacity", [](const Context& c) { return setFraction(c.style.fillOpacity, c.value); }},
    {"stroke-opacity",
     [](const Context& c) { return setFraction(c.style.strokeOpacity, c.value); }},
    {"opacity", [](const Context& c) { return setFraction(c.style.opacity, c.value); }},
    {"stroke-width", setStrokeWidth},
    {"stroke-miterlimit",
     [](const Context& c) {
         const auto limit = parseNumber(c.value);
         return limit && *limit >= 1 && assign(c.style.miterLimit, limit);
     }},
    {"stroke-dasharray", setDashes},
    {"stroke-dashoffset", [](const Context& c) { return assign(c.style.dashOffset, c.length()); }},
    {"stroke-linecap", [](const Context& c) { return setWord(c.style.cap, c.value, kCaps); }},
    {"stroke-linejoin", [](const Context& c) { return setWord(c.style.join, c.value, kJoins); }},
    {"fill-rule", [](const Context& c) { return setWord(c.style.evenOdd, c.value, kRules); }},
    {"clip-rule", [](const Context& c) { return setWord(c.style.clipEvenOdd, c.value, kRules); }},
    {"visibility", [](const Context& c) { return setWord(c.style.visible, c.value, kVisibility); }},
    {"display",
     [](const Context& c) { return assign(c.style.displayed, std::optional{c.value != "none"}); }},
    {"clip-path", setClipPath},
    {"stop-color",
     [](const Context& c) {
         Paint paint;
         if (!setPaint(paint, c) || paint.kind != Paint::Kind::Plain) return false;
         c.style.stopColour = paint.colour;
         return true;
     }},
    {"stop-opacity", [](const Context& c) { return setFraction(c.style.stopOpacity, c.value); }},
    {"font-family", setFontFamily},
    {"font-size", setFontSize},
    {"font-weight",
     [](const Context& c) {
         if (const auto weight = parseNumber(c.value)) c.style.font.bold = *weight >= 600;
         return setWord(c.style.font.bold, c.value, kWeights);
     }},
    {"font-style", [](const Context& c) { return setWord(c.style.font.italic, c.value, kSlants); }},
    {"text-anchor", [](const Context& c) { return setWord(c.style.anchor, c.value, kAnchors); }},
};

/// Can the property be written in a declaration list, among others, and be read again? What cannot
/// is invalid to all readers and has no effect.
bool isOneDeclaration(const std::string& property, const std::string& value) {
    if (propertyNamed(property).understood) return true; // never kept in a declaration list
    const auto isNamed = [](char c) { return (c >= 'a' && c <= 'z') || c == '-' || c == '_'; };
    if (!std::ranges::all_of(property, isNamed)) return false;
    const std::vector<Declaration> read = parseDeclarations(property + ':' + value + ";x:y");
    return read.size() == 2 && read[0].property == property && read[0].value == value &&
           !read[0].important;
}

/// What a child starts from: the parent's style without what is the parent's own.
Style handedDown(const Style& parent) {
    Style style = parent;
    const Style initial;
    style.opacity = initial.opacity;
    style.displayed = initial.displayed;
    style.clipPath.clear();
    style.stopColour = initial.stopColour;
    style.stopOpacity = initial.stopOpacity;
    style.others.clear();
    std::erase_if(style.unknown,
                  [](const auto& each) { return !propertyNamed(each.first).inherited; });
    return style;
}

/// What style sheets may set of a shape's geometry, where only attributes are read.
constexpr std::string_view kGeometry[] = {"transform", "translate", "rotate", "scale", "d",
                                          "cx",        "cy",        "r",      "rx",    "ry",
                                          "x",         "y",         "width",  "height"};

/// False for a value that is not understood.
bool apply(Style& style, const Style& parent, std::string_view property, std::string_view value,
           double viewport) {
    value = trimmed(value);
    const Property& known = propertyNamed(property);
    if (known.name.empty()) return std::ranges::find(kGeometry, property) == std::end(kGeometry);
    const bool asParent = value == "inherit" || (value == "unset" && known.inherited);
    if (asParent) return known.inherited; // what is handed down is there already
    if (value == "initial" || value == "unset") value = known.initial;
    for (const Setter& setter : kSetters)
        if (setter.property == property)
            return setter.set({style, parent, value, viewport}) || known.text;
    return true;
}

} // namespace

const Property& propertyNamed(std::string_view name) {
    const Property* const row = std::ranges::lower_bound(kProperties, name, {}, &Property::name);
    return row != std::end(kProperties) && row->name == name ? *row : kNoProperty;
}

Style styleOf(const Properties& properties, const Style& parent, double viewport) {
    Style style = handedDown(parent);
    // Other values refer to these two.
    for (const char* const first : {"font-size", "color"}) {
        const auto found = properties.find(first);
        if (found != properties.end()) apply(style, parent, first, found->second, viewport);
    }
    std::shared_ptr<Properties> inherited;
    for (const auto& [property, value] : properties) {
        if (apply(style, parent, property, value, viewport))
            style.unknown.erase(property);
        else
            style.unknown[property] = value;
        if (!isOneDeclaration(property, value)) continue;
        const Property& known = propertyNamed(property);
        if (known.inherited) {
            if (value == "inherit" || value == "unset") continue;
            if (!inherited)
                inherited = style.inherited ? std::make_shared<Properties>(*style.inherited)
                                            : std::make_shared<Properties>();
            // A size relative to an ancestor's means something else without the ancestor.
            (*inherited)[property] =
                property == "font-size" ? formatNumber(style.font.size) : value;
        } else if (!known.understood && !style.unknown.contains(property)) {
            style.others[property] = value;
        }
    }
    if (inherited) style.inherited = std::move(inherited);
    return style;
}

std::string referenceIn(std::string_view text) {
    Cursor cursor{trimmed(text)};
    if (!cursor.skipWord("url(")) return {};
    cursor.skipBlanks();
    if (!cursor.skip('"')) cursor.skip('\'');
    if (!cursor.skip('#')) return {};
    const std::string_view rest = cursor.rest();
    const std::string_view id = trimmed(rest.substr(0, rest.find_first_of("\"')")));
    // Such an id would have to be escaped wherever it is referred to, which nobody does.
    const bool isPlain = id.find_first_of(" \t\r\n(;{}\\") == std::string_view::npos;
    return isPlain ? std::string{id} : std::string{};
}

} // namespace easel::svg
