#include "toolkit/ImplCommon/Text.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <algorithm>

namespace NRDM {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstBeyondUnit = 0x10000;
constexpr char32_t kLeadSurrogate = 0xD800;
constexpr char32_t kTrailSurrogate = 0xDC00;
constexpr char32_t kBehindSurrogates = 0xE000;
constexpr char32_t kLastCharacter = 0x10FFFF;

constexpr bool isSurrogate(char32_t c) { return c >= kLeadSurrogate && c < kBehindSurrogates; }

constexpr bool continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Takes the first character off `text`, which is not empty.
char32_t takeCharacter(std::string_view& text) {
    struct Form {
        unsigned mask, lead;
        std::size_t length;
        char32_t least;
    };
    constexpr Form kForms[] = {{0x80, 0x00, 1, 0},
                               {0xE0, 0xC0, 2, 0x80},
                               {0xF0, 0xE0, 3, 0x800},
                               {0xF8, 0xF0, 4, 0x10000}};
    const unsigned first = static_cast<unsigned char>(text.front());
    const auto* const form = std::ranges::find_if(
        kForms, [&](const Form& candidate) { return (first & candidate.mask) == candidate.lead; });
    if (form == std::end(kForms) || text.size() < form->length ||
        !std::ranges::all_of(text.substr(1, form->length - 1), continues)) {
        text.remove_prefix(1);
        return kReplacement;
    }
    char32_t character = first & ~form->mask;
    for (const char byte : text.substr(1, form->length - 1))
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3F);
    text.remove_prefix(form->length);
    const bool valid =
        character >= form->least && character <= kLastCharacter && !isSurrogate(character);
    return valid ? character : kReplacement;
}

char32_t takeCharacter(std::u16string_view& text) {
    const char32_t first = text.front();
    text.remove_prefix(1);
    if (!isSurrogate(first)) return first;
    if (first >= kTrailSurrogate || text.empty() || text.front() < kTrailSurrogate ||
        text.front() >= kBehindSurrogates)
        return kReplacement;
    const char32_t second = text.front();
    text.remove_prefix(1);
    return kFirstBeyondUnit + ((first - kLeadSurrogate) << 10) + (second - kTrailSurrogate);
}

void append(std::string& text, char32_t character) {
    const auto byte = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    const auto tail = [&](int shift) { byte(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) return byte(character);
    if (character < 0x800) {
        byte(0xC0 | (character >> 6));
    } else if (character < kFirstBeyondUnit) {
        byte(0xE0 | (character >> 12));
        tail(6);
    } else {
        byte(0xF0 | (character >> 18));
        tail(12);
        tail(6);
    }
    tail(0);
}

void append(std::u16string& text, char32_t character) {
    const auto unit = [&](char32_t bits) { text.push_back(static_cast<char16_t>(bits)); };
    if (character < kFirstBeyondUnit) return unit(character);
    unit(kLeadSurrogate + ((character - kFirstBeyondUnit) >> 10));
    unit(kTrailSurrogate + ((character - kFirstBeyondUnit) & 0x3FF));
}

template <typename To, typename From> To converted(From text) {
    To result;
    while (!text.empty())
        append(result, takeCharacter(text));
    return result;
}

/// Calls `plain(character)` for what is read and `marked(character)` for the access key.
template <typename Plain, typename Marked>
void readCaption(std::string_view caption, Plain plain, Marked marked) {
    while (!caption.empty()) {
        const char32_t character = takeCharacter(caption);
        if (character != U'&' || caption.empty()) {
            plain(character);
            continue;
        }
        const char32_t next = takeCharacter(caption);
        if (next == U'&')
            plain(next);
        else
            marked(next);
    }
}

void requireBuffer(const void* buffer, ADMInt32 size) {
    if (buffer == nullptr || size <= 0) throw NRDMParameterException();
}

} // namespace

std::string utf8Of(std::u16string_view text) { return converted<std::string>(text); }

std::u16string utf16Of(std::string_view text) { return converted<std::u16string>(text); }

std::string textFrom(const char* text) { return text != nullptr ? text : ""; }

std::string textFrom(const ADMUnicode* text) {
    std::u16string units;
    for (; text != nullptr && *text != 0; ++text)
        units.push_back(*text);
    return utf8Of(units);
}

void copyText(const std::string& text, char* buffer, ADMInt32 size) {
    requireBuffer(buffer, size);
    std::size_t count = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    while (count > 0 && count < text.size() && continues(text[count]))
        --count;
    buffer[text.copy(buffer, count)] = '\0';
}

void copyText(const std::string& text, ADMUnicode* buffer, ADMInt32 size) {
    requireBuffer(buffer, size);
    const std::u16string units = utf16Of(text);
    std::size_t count = std::min(units.size(), static_cast<std::size_t>(size) - 1);
    if (count > 0 && count < units.size() && isSurrogate(units[count]) &&
        units[count] >= kTrailSurrogate)
        --count;
    *std::copy_n(units.begin(), count, buffer) = 0;
}

int lengthOf(std::string_view text) {
    int length = 0;
    for (; !text.empty(); ++length)
        takeCharacter(text);
    return length;
}

char32_t accessKeyOf(std::string_view caption) {
    char32_t key = 0;
    readCaption(
        caption, [](char32_t) {},
        [&](char32_t marked) {
            if (key == 0) key = marked >= U'a' && marked <= U'z' ? marked - U'a' + U'A' : marked;
        });
    return key;
}

std::string withoutMarks(std::string_view caption) {
    std::string text;
    const auto keep = [&](char32_t character) { append(text, character); };
    readCaption(caption, keep, keep);
    return text;
}

} // namespace NRDM
