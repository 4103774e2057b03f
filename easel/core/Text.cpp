#include "easel/core/Text.h"

#include "host/Error.h"

#include <array>

namespace easel {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstSupplementary = 0x10000;
constexpr char32_t kLastCharacter = 0x10FFFF;

constexpr bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }
constexpr bool isSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xE000; }

/// One row for each length of a UTF-8 sequence: how its first byte looks, and the least character
/// that needs it.
struct Utf8Form {
    unsigned char mask;
    unsigned char lead;
    char32_t least;
};
constexpr std::array<Utf8Form, 4> kUtf8Forms = {{
    {0x80, 0x00, 0},
    {0xE0, 0xC0, 0x80},
    {0xF0, 0xE0, 0x800},
    {0xF8, 0xF0, kFirstSupplementary},
}};

void appendUtf8(std::string& text, char32_t character) {
    if (character > kLastCharacter || isSurrogate(character)) character = kReplacement;
    std::size_t tail = kUtf8Forms.size() - 1;
    while (character < kUtf8Forms[tail].least)
        --tail;
    text.push_back(static_cast<char>(kUtf8Forms[tail].lead | character >> (6 * tail)));
    while (tail-- > 0)
        text.push_back(static_cast<char>(0x80 | (character >> (6 * tail) & 0x3F)));
}

} // namespace

std::optional<char32_t> takeUtf8(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    for (std::size_t tail = 0; tail < kUtf8Forms.size(); ++tail) {
        const Utf8Form& form = kUtf8Forms[tail];
        if ((byte(0) & form.mask) != form.lead) continue;
        if (text.size() <= tail) break;
        char32_t character = byte(0) & static_cast<unsigned char>(~form.mask);
        for (std::size_t i = 1; i <= tail; ++i) {
            if ((byte(i) & 0xC0) != 0x80) return std::nullopt;
            character = character << 6 | (byte(i) & 0x3F);
        }
        if (character < form.least || character > kLastCharacter || isSurrogate(character)) break;
        text.remove_prefix(tail + 1);
        return character;
    }
    return std::nullopt;
}

std::u32string utf32FromUtf8(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    while (!text.empty()) {
        const auto character = takeUtf8(text);
        if (!character) throw ai::Error{kStringMalformedErr};
        characters.push_back(*character);
    }
    return characters;
}

std::u32string utf32FromUtf16(std::u16string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        if (isHighSurrogate(character) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
            const char32_t high = character - 0xD800;
            character = kFirstSupplementary + (high << 10) + (text[i + 1] - 0xDC00U);
            ++i;
        }
        characters.push_back(character);
    }
    return characters;
}

std::string utf8FromUtf32(std::u32string_view text) {
    std::string bytes;
    for (const char32_t character : text)
        appendUtf8(bytes, character);
    return bytes;
}

std::u16string utf16FromUtf32(std::u32string_view text) {
    std::u16string units;
    for (const char32_t character : text) {
        if (character < kFirstSupplementary) {
            units.push_back(static_cast<char16_t>(character));
            continue;
        }
        const char32_t offset = character - kFirstSupplementary;
        units.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
        units.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
    }
    return units;
}

} // namespace easel
