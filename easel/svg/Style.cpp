#include "easel/svg/Style.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <optional>

namespace easel::svg {
namespace {

/// A dash pattern with more parts is no pattern any more.
constexpr std::size_t kMostDashes = 1024;

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

} // namespace

/// What a property says where it stands.
struct PropertyValue {
    Style& style;
    const Style& parent;
    std::string_view value;
    double viewport;

    [[nodiscard]] std::optional<double> length() const {
        return parseLength(value, viewport, style.font.size);
    }
};

namespace {

// Setters: false for a value that is not understood, which changes nothing.

template <typename T> bool assign(T& target, const std::optional<T>& value) {
    if (value) target = *value;
    return value.has_value();
}

template <double Style::*Member> bool setFraction(const PropertyValue& c) {
    return assign(c.style.*Member, parseFraction(c.value));
}

template <typename T> struct Word {
    std::string_view text;
    T value;
};

template <typename T, std::size_t N>
bool setByWord(T& target, std::string_view value, const Word<T> (&words)[N]) {
    const auto* const word = std::ranges::find(words, value, &Word<T>::text);
    if (word == std::end(words)) return false;
    target = word->value;
    return true;
}

template <auto Member, const auto& Words> bool setWord(const PropertyValue& c) {
    return setByWord(c.style.*Member, c.value, Words);
}

bool setDashes(const PropertyValue& c) {
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

bool setFontSize(const PropertyValue& c) {
    constexpr Word<double> kSizes[] = {{"xx-small", 9}, {"x-small", 10}, {"small", 13},
                                       {"medium", 16},  {"large", 18},   {"x-large", 24},
                                       {"xx-large", 32}};
    const double parentSize = c.parent.font.size;
    std::optional<double> size = parseLength(c.value, parentSize, parentSize);
    if (c.value == "larger") size = 1.2 * parentSize;
    if (c.value == "smaller") size = parentSize / 1.2;
    double known = 0.0;
    if (setByWord(known, c.value, kSizes)) size = known;
    if (!size || !(*size >= 0 && *size <= kLargestCoordinate)) return false;
    c.style.font.size = *size;
    return true;
}

bool setFontFamily(const PropertyValue& c) {
    std::string_view first = trimmed(c.value.substr(0, c.value.find(',')));
    if (first.size() >= 2 && (first.front() == '\'' || first.front() == '"'))
        first = first.substr(1, first.size() - 2);
    if (!first.empty()) c.style.font.family = first;
    return true;
}

bool setStrokeWidth(const PropertyValue& c) {
    const auto width = c.length();
    if (!width || !(*width >= 0 && *width <= kLargestCoordinate)) return false;
    c.style.strokeWidth = *width;
    return true;
}

bool setClipPath(const PropertyValue& c) {
    c.style.clipPath = referenceIn(c.value);
    return !c.style.clipPath.empty() || c.value == "none";
}

template <Paint Style::*Member> bool setPaint(const PropertyValue& c) {
    return assign(c.style.*Member, parsePaint(c.value, c.style.color));
}

bool setColor(const PropertyValue& c) { return assign(c.style.color, parseColour(c.value)); }

bool setStopColour(const PropertyValue& c) {
    const auto paint = parsePaint(c.value, c.style.color);
    if (!paint || paint->kind != Paint::Kind::Plain) return false;
    c.style.stopColour = paint->colour;
    return true;
}

bool setMiterLimit(const PropertyValue& c) {
    const auto limit = parseNumber(c.value);
    return limit && *limit >= 1 && assign(c.style.miterLimit, limit);
}

bool setDashOffset(const PropertyValue& c) { return assign(c.style.dashOffset, c.length()); }

bool setDisplay(const PropertyValue& c) {
    c.style.displayed = c.value != "none";
    return true;
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

bool setFontWeight(const PropertyValue& c) {
    if (const auto weight = parseNumber(c.value)) c.style.font.bold = *weight >= 600;
    return setByWord(c.style.font.bold, c.value, kWeights);
}

bool setFontStyle(const PropertyValue& c) {
    return setByWord(c.style.font.italic, c.value, kSlants);
}

/// In alphabetical order, for a binary search.
constexpr Property kProperties[] = {
    {"alignment-baseline", false, false, true, ""},
    {"baseline-shift", false, false, true, ""},
    {"clip-path", true, false, false, "none", setClipPath},
    {"clip-rule", true, true, false, "nonzero", setWord<&Style::clipEvenOdd, kRules>},
    {"color", true, true, false, "black", setColor},
    {"color-interpolation", false, true, false, "sRGB"},
    {"color-interpolation-filters", false, true, false, "linearRGB"},
    {"color-rendering", false, true, false, "auto"},
    {"cursor", false, true, false, ""},
    {"direction", false, true, true, "ltr"},
    {"display", true, false, false, "inline", setDisplay},
    {"dominant-baseline", false, true, true, "auto"},
    {"enable-background", false, false, false, ""},
    {"fill", true, true, false, "#000000", setPaint<&Style::fill>},
    {"fill-opacity", true, true, false, "1", setFraction<&Style::fillOpacity>},
    {"fill-rule", true, true, false, "nonzero", setWord<&Style::evenOdd, kRules>},
    {"filter", false, false, false, "none"},
    {"font", false, true, true, ""},
    {"font-family", false, true, true, "", setFontFamily},
    {"font-feature-settings", false, true, true, ""},
    {"font-kerning", false, true, true, ""},
    {"font-size", false, true, true, "medium", setFontSize},
    {"font-size-adjust", false, true, true, ""},
    {"font-stretch", false, true, true, "normal"},
    {"font-style", false, true, true, "normal", setFontStyle},
    {"font-variant", false, true, true, "normal"},
    {"font-weight", false, true, true, "normal", setFontWeight},
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
    {"opacity", true, false, false, "1", setFraction<&Style::opacity>},
    {"overflow", false, false, false, ""},
    {"paint-order", false, true, false, "normal"},
    {"pointer-events", false, true, false, ""},
    {"shape-rendering", false, true, false, "auto"},
    {"stop-color", true, false, false, "black", setStopColour},
    {"stop-opacity", true, false, false, "1", setFraction<&Style::stopOpacity>},
    {"stroke", true, true, false, "none", setPaint<&Style::stroke>},
    {"stroke-dasharray", true, true, false, "none", setDashes},
    {"stroke-dashoffset", true, true, false, "0", setDashOffset},
    {"stroke-linecap", true, true, false, "butt", setWord<&Style::cap, kCaps>},
    {"stroke-linejoin", true, true, false, "miter", setWord<&Style::join, kJoins>},
    {"stroke-miterlimit", true, true, false, "4", setMiterLimit},
    {"stroke-opacity", true, true, false, "1", setFraction<&Style::strokeOpacity>},
    {"stroke-width", true, true, false, "1", setStrokeWidth},
    {"text-align", false, true, true, ""},
    {"text-anchor", false, true, true, "start", setWord<&Style::anchor, kAnchors>},
    {"text-decoration", false, false, true, ""},
    {"text-indent", false, true, true, ""},
    {"text-rendering", false, true, true, ""},
    {"text-transform", false, true, true, ""},
    {"unicode-bidi", false, false, true, ""},
    {"vector-effect", false, false, false, "none"},
    {"visibility", true, true, false, "visible", setWord<&Style::visible, kVisibility>},
    {"white-space", false, true, true, ""},
    {"word-spacing", false, true, true, "normal"},
    {"writing-mode", false, true, true, ""},
};
static_assert(std::ranges::is_sorted(kProperties, {}, &Property::name));
constexpr Property kNoProperty;

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
    return known.set == nullptr || known.set({style, parent, value, viewport}) || known.text;
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
