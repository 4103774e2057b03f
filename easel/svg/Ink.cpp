#include "easel/svg/Ink.h"

#include "easel/svg/Numbers.h"

#include <algorithm>

namespace easel::svg {
namespace {

void append(std::string& text, std::initializer_list<AIReal> values) {
    for (const AIReal value : values) {
        text += ' ';
        appendNumber(text, value);
    }
}

} // namespace

std::optional<Colour> plainColour(const AIColor& color) {
    const auto unit = [](AIReal value) { return std::clamp(value, 0.0F, 1.0F); };
    if (color.kind == kGrayColor) {
        const float light = 1.0F - unit(color.c.g.gray);
        return Colour{light, light, light, 1.0F};
    }
    if (color.kind == kFourColor) {
        const AIFourColorStyle& ink = color.c.f;
        const float light = 1.0F - unit(ink.black);
        return Colour{(1.0F - unit(ink.cyan)) * light, (1.0F - unit(ink.magenta)) * light,
                      (1.0F - unit(ink.yellow)) * light, 1.0F};
    }
    if (color.kind == kThreeColor)
        return Colour{unit(color.c.rgb.red), unit(color.c.rgb.green), unit(color.c.rgb.blue), 1.0F};
    return std::nullopt;
}

std::string inkText(const AIColor& color) {
    std::string text;
    if (color.kind == kGrayColor) {
        text = "gray";
        append(text, {color.c.g.gray});
    } else if (color.kind == kFourColor) {
        text = "cmyk";
        append(text, {color.c.f.cyan, color.c.f.magenta, color.c.f.yellow, color.c.f.black});
    }
    return text;
}

std::optional<AIColor> parseInk(std::string_view text) {
    Cursor cursor{text};
    const bool gray = cursor.skipWord("gray");
    if (!gray && !cursor.skipWord("cmyk")) return std::nullopt;
    const NumberList list = parseNumbers(cursor.rest());
    if (!list.complete || list.numbers.size() != (gray ? 1U : 4U)) return std::nullopt;
    const auto value = [&](std::size_t i) { return static_cast<AIReal>(list.numbers[i]); };
    AIColor color{};
    color.kind = gray ? kGrayColor : kFourColor;
    if (gray)
        color.c.g.gray = value(0);
    else
        color.c.f = {value(0), value(1), value(2), value(3)};
    return color;
}

} // namespace easel::svg
