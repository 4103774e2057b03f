#include "easel/svg/Colour.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace easel::svg {
namespace {

struct NamedColour {
    std::string_view name;
    std::uint32_t rgb;
};

// clang-format off
/// In alphabetical order, for a binary search.
constexpr NamedColour kNamedColours[] = {
    {"aliceblue", 0xf0f8ff}, {"antiquewhite", 0xfaebd7}, {"aqua", 0x00ffff},
    {"aquamarine", 0x7fffd4}, {"azure", 0xf0ffff}, {"beige", 0xf5f5dc}, {"bisque", 0xffe4c4},
    {"black", 0x000000}, {"blanchedalmond", 0xffebcd}, {"blue", 0x0000ff}, {"blueviolet", 0x8a2be2},
    {"brown", 0xa52a2a}, {"burlywood", 0xdeb887}, {"cadetblue", 0x5f9ea0}, {"chartreuse", 0x7fff00},
    {"chocolate", 0xd2691e}, {"coral", 0xff7f50}, {"cornflowerblue", 0x6495ed},
    {"cornsilk", 0xfff8dc}, {"crimson", 0xdc143c}, {"cyan", 0x00ffff}, {"darkblue", 0x00008b},
    {"darkcyan", 0x008b8b}, {"darkgoldenrod", 0xb8860b}, {"darkgray", 0xa9a9a9},
    {"darkgreen", 0x006400}, {"darkgrey", 0xa9a9a9}, {"darkkhaki", 0xbdb76b},
    {"darkmagenta", 0x8b008b}, {"darkolivegreen", 0x556b2f}, {"darkorange", 0xff8c00},
    {"darkorchid", 0x9932cc}, {"darkred", 0x8b0000}, {"darksalmon", 0xe9967a},
    {"darkseagreen", 0x8fbc8f}, {"darkslateblue", 0x483d8b}, {"darkslategray", 0x2f4f4f},
    {"darkslategrey", 0x2f4f4f}, {"darkturquoise", 0x00ced1}, {"darkviolet", 0x9400d3},
    {"deeppink", 0xff1493}, {"deepskyblue", 0x00bfff}, {"dimgray", 0x696969}, {"dimgrey", 0x696969},
    {"dodgerblue", 0x1e90ff}, {"firebrick", 0xb22222}, {"floralwhite", 0xfffaf0},
    {"forestgreen", 0x228b22}, {"fuchsia", 0xff00ff}, {"gainsboro", 0xdcdcdc},
    {"ghostwhite", 0xf8f8ff}, {"gold", 0xffd700}, {"goldenrod", 0xdaa520}, {"gray", 0x808080},
    {"green", 0x008000}, {"greenyellow", 0xadff2f}, {"grey", 0x808080}, {"honeydew", 0xf0fff0},
    {"hotpink", 0xff69b4}, {"indianred", 0xcd5c5c}, {"indigo", 0x4b0082}, {"ivory", 0xfffff0},
    {"khaki", 0xf0e68c}, {"lavender", 0xe6e6fa}, {"lavenderblush", 0xfff0f5},
    {"lawngreen", 0x7cfc00}, {"lemonchiffon", 0xfffacd}, {"lightblue", 0xadd8e6},
    {"lightcoral", 0xf08080}, {"lightcyan", 0xe0ffff}, {"lightgoldenrodyellow", 0xfafad2},
    {"lightgray", 0xd3d3d3}, {"lightgreen", 0x90ee90}, {"lightgrey", 0xd3d3d3},
    {"lightpink", 0xffb6c1}, {"lightsalmon", 0xffa07a}, {"lightseagreen", 0x20b2aa},
    {"lightskyblue", 0x87cefa}, {"lightslategray", 0x778899}, {"lightslategrey", 0x778899},
    {"lightsteelblue", 0xb0c4de}, {"lightyellow", 0xffffe0}, {"lime", 0x00ff00},
    {"limegreen", 0x32cd32}, {"linen", 0xfaf0e6}, {"magenta", 0xff00ff}, {"maroon", 0x800000},
    {"mediumaquamarine", 0x66cdaa}, {"mediumblue", 0x0000cd}, {"mediumorchid", 0xba55d3},
    {"mediumpurple", 0x9370db}, {"mediumseagreen", 0x3cb371}, {"mediumslateblue", 0x7b68ee},
    {"mediumspringgreen", 0x00fa9a}, {"mediumturquoise", 0x48d1cc}, {"mediumvioletred", 0xc71585},
    {"midnightblue", 0x191970}, {"mintcream", 0xf5fffa}, {"mistyrose", 0xffe4e1},
    {"moccasin", 0xffe4b5}, {"navajowhite", 0xffdead}, {"navy", 0x000080}, {"oldlace", 0xfdf5e6},
    {"olive", 0x808000}, {"olivedrab", 0x6b8e23}, {"orange", 0xffa500}, {"orangered", 0xff4500},
    {"orchid", 0xda70d6}, {"palegoldenrod", 0xeee8aa}, {"palegreen", 0x98fb98},
    {"paleturquoise", 0xafeeee}, {"palevioletred", 0xdb7093}, {"papayawhip", 0xffefd5},
    {"peachpuff", 0xffdab9}, {"peru", 0xcd853f}, {"pink", 0xffc0cb}, {"plum", 0xdda0dd},
    {"powderblue", 0xb0e0e6}, {"purple", 0x800080}, {"rebeccapurple", 0x663399}, {"red", 0xff0000},
    {"rosybrown", 0xbc8f8f}, {"royalblue", 0x4169e1}, {"saddlebrown", 0x8b4513},
    {"salmon", 0xfa8072}, {"sandybrown", 0xf4a460}, {"seagreen", 0x2e8b57}, {"seashell", 0xfff5ee},
    {"sienna", 0xa0522d}, {"silver", 0xc0c0c0}, {"skyblue", 0x87ceeb}, {"slateblue", 0x6a5acd},
    {"slategray", 0x708090}, {"slategrey", 0x708090}, {"snow", 0xfffafa}, {"springgreen", 0x00ff7f},
    {"steelblue", 0x4682b4}, {"tan", 0xd2b48c}, {"teal", 0x008080}, {"thistle", 0xd8bfd8},
    {"tomato", 0xff6347}, {"turquoise", 0x40e0d0}, {"violet", 0xee82ee}, {"wheat", 0xf5deb3},
    {"white", 0xffffff}, {"whitesmoke", 0xf5f5f5}, {"yellow", 0xffff00}, {"yellowgreen", 0x9acd32},
};
// clang-format on

Colour fromBytes(std::uint32_t rgb, std::uint32_t alpha = 255) {
    const auto channel = [](std::uint32_t byte) { return static_cast<float>(byte) / 255.0F; };
    return {channel(rgb >> 16 & 255), channel(rgb >> 8 & 255), channel(rgb & 255), channel(alpha)};
}

std::optional<Colour> parseHex(std::string_view digits) {
    std::array<std::uint32_t, 4> channels{0, 0, 0, 255};
    const bool shortForm = digits.size() == 3 || digits.size() == 4;
    if (!shortForm && digits.size() != 6 && digits.size() != 8) return std::nullopt;
    const std::size_t width = shortForm ? 1 : 2;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const std::size_t digit = std::string_view{"0123456789abcdef"}.find(digits[i]);
        if (digit == std::string_view::npos) return std::nullopt;
        std::uint32_t& channel = channels[i / width];
        const auto value = static_cast<std::uint32_t>(digit);
        channel = shortForm ? value * 17 : (i % 2 == 0 ? value * 16 : channel + value);
    }
    return fromBytes(channels[0] << 16 | channels[1] << 8 | channels[2], channels[3]);
}

/// The arguments of a colour function: numbers, some of them percentages, split by blanks, commas
/// or the slash before alpha.
struct Argument {
    double value = 0.0;
    bool percent = false;
};

std::optional<std::vector<Argument>> parseArguments(Cursor& cursor) {
    std::vector<Argument> arguments;
    while (arguments.size() < 5) {
        cursor.skipBlanks();
        cursor.skip('/');
        const std::optional<double> value = cursor.number();
        if (!value) break;
        const bool percent = cursor.skip('%');
        if (!percent) cursor.skipWord("deg");
        arguments.push_back({*value, percent});
    }
    cursor.skipBlanks();
    if (!cursor.skip(')') || arguments.size() < 3 || arguments.size() > 4) return std::nullopt;
    return arguments;
}

float clampedFraction(double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); }

float alphaOf(const std::vector<Argument>& arguments) {
    if (arguments.size() < 4) return 1.0F;
    return clampedFraction(arguments[3].percent ? arguments[3].value / 100 : arguments[3].value);
}

Colour fromRgb(const std::vector<Argument>& arguments) {
    const auto channel = [&](std::size_t i) {
        return clampedFraction(arguments[i].value / (arguments[i].percent ? 100.0 : 255.0));
    };
    return {channel(0), channel(1), channel(2), alphaOf(arguments)};
}

/// CSS's own formula: a channel is a ramp over the circle of hues.
Colour fromHsl(const std::vector<Argument>& arguments) {
    const double hue = std::fmod(std::fmod(arguments[0].value, 360.0) + 360.0, 360.0) / 30.0;
    const double saturation = std::clamp(arguments[1].value / 100, 0.0, 1.0);
    const double lightness = std::clamp(arguments[2].value / 100, 0.0, 1.0);
    const double chroma = saturation * std::min(lightness, 1 - lightness);
    const auto channel = [&](double offset) {
        const double k = std::fmod(offset + hue, 12.0);
        return clampedFraction(lightness - chroma * std::clamp(std::min(k - 3, 9 - k), -1.0, 1.0));
    };
    return {channel(0), channel(8), channel(4), alphaOf(arguments)};
}

std::optional<Colour> parseFunction(std::string_view text) {
    Cursor cursor{text};
    for (const std::string_view name : {"rgba(", "rgb(", "hsla(", "hsl("}) {
        if (!cursor.skipWord(name)) continue;
        const auto arguments = parseArguments(cursor);
        if (!arguments || !cursor.atEnd()) return std::nullopt;
        return name.front() == 'r' ? fromRgb(*arguments) : fromHsl(*arguments);
    }
    return std::nullopt;
}

} // namespace

std::optional<Colour> parseColour(std::string_view text) {
    const std::string word = lowered(trimmed(text));
    if (word.starts_with('#')) return parseHex(std::string_view{word}.substr(1));
    if (word == "transparent") return Colour{0, 0, 0, 0};
    const NamedColour* const found =
        std::ranges::lower_bound(kNamedColours, std::string_view{word}, {}, &NamedColour::name);
    if (found != std::end(kNamedColours) && found->name == word) return fromBytes(found->rgb);
    return parseFunction(word);
}

std::string formatColour(const Colour& colour) {
    std::string hex = "#";
    std::string exact = "rgb(";
    bool bytes = true;
    for (const float channel : {colour.red, colour.green, colour.blue}) {
        const auto byte =
            static_cast<std::uint32_t>(std::lround(std::clamp(channel, 0.0F, 1.0F) * 255.0F));
        bytes = bytes && static_cast<float>(byte) / 255.0F == channel;
        hex += "0123456789abcdef"[byte / 16];
        hex += "0123456789abcdef"[byte % 16];
        if (exact.back() != '(') exact += ' ';
        appendNumber(exact, static_cast<double>(channel) * 100.0);
        exact += '%';
    }
    return bytes ? hex : exact + ')';
}

} // namespace easel::svg
