#include "easel/runtime/Drawer.h"

#include "easel/core/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace easel {
namespace {

constexpr const char* kKindNames[] = {"line", "rect",   "polygon", "ellipse", "bezier",
                                      "text", "clip {", "clip }",  "clip off"};

constexpr AIReal kCharacterWidth = 0.5F; ///< Of the font size.
constexpr AIReal kLineHeight = 1.2F;     ///< Of the font size.

std::string hexColour(const AIRGBColor& colour) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", colour.red >> 8U, colour.green >> 8U,
                  colour.blue >> 8U);
    return text.data();
}

std::string describe(const DrawCommand& command) {
    using Kind = DrawCommand::Kind;
    std::string line = kKindNames[static_cast<std::size_t>(command.kind)];
    for (const AIPoint& point : command.points)
        line += ' ' + std::to_string(point.h) + ',' + std::to_string(point.v);
    if (!command.text.empty()) line += " \"" + utf8FromUtf32(command.text) + '"';
    const bool isClip = command.kind == Kind::ClipStart || command.kind == Kind::ClipEnd ||
                        command.kind == Kind::ClipClear;
    if (isClip) return line;
    line += ' ' + hexColour(command.style.colour);
    if (command.fill) line += " filled";
    if (command.style.dashed) line += " dashed";
    return line;
}

} // namespace

std::string dump(const DisplayList& list) {
    std::string lines;
    for (const DrawCommand& command : list)
        lines += describe(command) + '\n';
    return lines;
}

AIRect textBounds(double width, AIReal fontSize) {
    const auto up = [](double length) { return static_cast<ai::int32>(std::ceil(length)); };
    return {0, 0, up(width), up(static_cast<double>(fontSize * kLineHeight))};
}

double estimatedWidth(const std::u32string& text, AIReal fontSize) {
    return static_cast<double>(static_cast<AIReal>(text.size()) * fontSize * kCharacterWidth);
}

} // namespace easel

void AIAnnotatorDrawer::add(easel::DrawCommand command) {
    command.style = style;
    list.push_back(std::move(command));
}

void AIAnnotatorDrawer::endClip() {
    using Kind = easel::DrawCommand::Kind;
    const auto marks = [](const easel::DrawCommand& command) {
        return command.kind == Kind::ClipStart || command.kind == Kind::ClipClear;
    };
    const auto last = std::find_if(list.rbegin(), list.rend(), marks);
    if (last != list.rend() && last->kind == Kind::ClipStart)
        add({.kind = Kind::ClipClear, .style = {}});
}
