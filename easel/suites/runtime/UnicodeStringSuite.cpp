#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/core/Text.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIUnicodeStringSuite.h"

#include <algorithm>
#include <string>
#include <utility>

/// Positions and counts are characters, never UTF-16 units; `npos` as a count means the rest.

namespace easel {
namespace {

using String = ai::UnicodeString;

constexpr AICharacterEncoding kPlatform = 0; ///< Easel's platform speaks UTF-8.
constexpr AICharacterEncoding kUtf8 = 1;
constexpr AICharacterEncoding kUtf16 = 2;
constexpr ai::int64 kUntilZero = -1;
/// Longer than any text a user or plug-in has business with.
constexpr std::size_t kMostCharacters = std::size_t{1} << 28;

std::size_t checkedLength(ai::int64 length) {
    if (length < 0) throw ai::Error{kBadParameterErr};
    if (static_cast<std::size_t>(length) > kMostCharacters) throw ai::Error{kStringTooLongErr};
    return static_cast<std::size_t>(length);
}

/// `count` characters of `string` from `start`. Throws 'US!I' when `start` lies outside.
std::u32string part(const String& string, std::size_t start, std::size_t count) {
    const std::u32string& text = readString(string);
    if (start > text.size()) throw ai::Error{kStringIndexErr};
    return text.substr(start, count);
}

std::u32string lower(std::u32string text) {
    std::transform(text.begin(), text.end(), text.begin(), toLower);
    return text;
}

AIErr initializeUtf16(String& string, const ASUnicode* units, ai::int64 count) {
    const auto* const first = reinterpret_cast<const char16_t*>(units);
    if (count != 0) static_cast<void>(required(units));
    const std::size_t length =
        count == kUntilZero ? std::char_traits<char16_t>::length(first) : checkedLength(count);
    writeString(string, utf32FromUtf16({first, length}));
    return kNoErr;
}

AIErr initialize(String& string, const char* bytes, ai::int64 length,
                 AICharacterEncoding encoding) {
    if (encoding == kUtf16)
        return initializeUtf16(string, reinterpret_cast<const ASUnicode*>(bytes),
                               length / static_cast<ai::int64>(sizeof(ASUnicode)));
    if (encoding != kPlatform && encoding != kUtf8) throw ai::Error{kBadParameterErr};
    if (length != 0) static_cast<void>(required(bytes));
    const std::size_t size =
        length == kUntilZero ? std::char_traits<char>::length(bytes) : checkedLength(length);
    writeString(string, utf32FromUtf8({bytes, size}));
    return kNoErr;
}

AIErr initializeUtf32(String& string, ai::int64 count, ai::uint32 character) {
    writeString(string, std::u32string(checkedLength(count), character));
    return kNoErr;
}

AIErr destroy(String& string) {
    destroyString(string);
    return kNoErr;
}

AIErr appendPart(String& string, const String& other, std::size_t start, std::size_t count) {
    writeString(string, readString(string) + part(other, start, count));
    return kNoErr;
}

AIErr append(String& string, const String& other) {
    return appendPart(string, other, 0, std::u32string::npos);
}

/// A copy shares nothing with its original. One of an unset string is unset or empty: the same.
AIErr assign(String& string, const String& other) {
    if (stringObject(other) != nullptr || stringObject(string) != nullptr)
        writeString(string, readString(other));
    return kNoErr;
}

AIErr getChar(const String& string, std::size_t position, ai::uint32& character) {
    const std::u32string& text = readString(string);
    if (position >= text.size()) throw ai::Error{kStringIndexErr};
    character = text[position];
    return kNoErr;
}

void clear(String& string) {
    if (stringObject(string) != nullptr) writeString(string, {});
}

ai::int32 sign(int difference) { return (difference > 0) - (difference < 0); }

ai::int32 compare(const String& string, std::size_t position, std::size_t count,
                  const String& other, std::size_t start, std::size_t otherCount) {
    return sign(part(string, position, count).compare(part(other, start, otherCount)));
}

ai::int32 caseCompare(const String& string, std::size_t position, std::size_t count,
                      const String& other, std::size_t start, std::size_t otherCount) {
    return sign(
        lower(part(string, position, count)).compare(lower(part(other, start, otherCount))));
}

template <char32_t (*Change)(char32_t) noexcept> AIErr changeCase(String& string) {
    std::u32string text = readString(string);
    std::transform(text.begin(), text.end(), text.begin(), Change);
    writeString(string, std::move(text));
    return kNoErr;
}

std::size_t length(const String& string) { return readString(string).size(); }

AIBool8 empty(const String& string) { return readString(string).empty() ? 1 : 0; }

AIErr erase(String& string, std::size_t position, std::size_t count) {
    std::u32string text = readString(string);
    if (position > text.size()) throw ai::Error{kStringIndexErr};
    writeString(string, text.erase(position, count));
    return kNoErr;
}

std::size_t findChar(const String& string, ai::uint32 character, std::size_t start) {
    return readString(string).find(static_cast<char32_t>(character), start);
}

std::size_t findString(const String& string, const String& wanted, std::size_t start) {
    return readString(string).find(readString(wanted), start);
}

/// The end of a search over `count` characters from `start`; a match must lie before it.
template <typename Find>
std::size_t findWithin(const String& string, std::size_t start, std::size_t count, Find find) {
    const std::u32string searched =
        readString(string).substr(0, count == std::u32string::npos ? count : start + count);
    return find(searched, start);
}

std::size_t findSubString(const String& string, const String& wanted, std::size_t start,
                          std::size_t count) {
    return findWithin(string, start, count, [&](const std::u32string& text, std::size_t from) {
        return text.find(readString(wanted), from);
    });
}

std::size_t caseFindSubString(const String& string, const String& wanted, std::size_t start,
                              std::size_t count) {
    return findWithin(string, start, count, [&](const std::u32string& text, std::size_t from) {
        return lower(text).find(lower(readString(wanted)), from);
    });
}

std::size_t rfindChar(const String& string, ai::uint32 character, std::size_t start) {
    return readString(string).rfind(static_cast<char32_t>(character), start);
}

std::size_t rfindString(const String& string, const String& wanted, std::size_t start) {
    return readString(string).rfind(readString(wanted), start);
}

AIErr resize(String& string, std::size_t count, ai::uint32 character) {
    if (count > kMostCharacters) throw ai::Error{kStringTooLongErr};
    std::u32string text = readString(string);
    text.resize(count, static_cast<char32_t>(character));
    writeString(string, std::move(text));
    return kNoErr;
}

AIErr subString(String& result, const String& string, std::size_t start, std::size_t count) {
    writeString(result, part(string, start, count));
    return kNoErr;
}

AIErr swapStrings(String& first, String& second) {
    std::u32string text = readString(first);
    writeString(first, readString(second));
    writeString(second, std::move(text));
    return kNoErr;
}

AIBool8 hasSurrogates(const String& string) {
    const std::u32string& text = readString(string);
    return std::any_of(text.begin(), text.end(), [](char32_t each) { return each > 0xFFFF; }) ? 1
                                                                                              : 0;
}

std::size_t utf16(const String& string, const ASUnicode*& units) {
    static constexpr ASUnicode kNone = 0;
    units = &kNone;
    StringObject* const object = stringObject(string);
    if (object == nullptr) return 0;
    object->units = utf16FromUtf32(object->text);
    units = reinterpret_cast<const ASUnicode*>(object->units.c_str());
    return object->units.size();
}

} // namespace

void installUnicodeStringSuite(SuiteServer& server) {
    using Suite = AIUnicodeStringSuite;
    auto table = server.table<Suite>(kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion);
    expose<&Suite::Initialize, initialize>(table);
    expose<&Suite::InitializeUTF16, initializeUtf16>(table);
    expose<&Suite::InitializeUTF32Char, initializeUtf32>(table);
    exposeEnding<&Suite::Destroy, destroy>(table);
    expose<&Suite::Append, append>(table);
    expose<&Suite::AppendSubString, appendPart>(table);
    expose<&Suite::Assign, assign>(table);
    expose<&Suite::Copy, assign>(table);
    expose<&Suite::GetChar, getChar>(table);
    expose<&Suite::Clear, clear>(table);
    expose<&Suite::Compare, compare>(table);
    expose<&Suite::toLower, changeCase<toLower>>(table);
    expose<&Suite::toUpper, changeCase<toUpper>>(table);
    expose<&Suite::CaseCompare, caseCompare>(table);
    expose<&Suite::Length, length>(table);
    expose<&Suite::Empty, empty>(table);
    expose<&Suite::Erase, erase>(table);
    expose<&Suite::FindChar, findChar>(table);
    expose<&Suite::FindString, findString>(table);
    expose<&Suite::FindSubString, findSubString>(table);
    expose<&Suite::CaseFindSubString, caseFindSubString>(table);
    expose<&Suite::RFindChar, rfindChar>(table);
    expose<&Suite::RFindString, rfindString>(table);
    expose<&Suite::Resize, resize>(table);
    expose<&Suite::SubStr, subString>(table);
    expose<&Suite::SwapStr, swapStrings>(table);
    expose<&Suite::HasSurrogates, hasSurrogates>(table);
    expose<&Suite::UTF_16, utf16>(table);
}

} // namespace easel
