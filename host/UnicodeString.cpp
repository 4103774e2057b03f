#include "host/UnicodeString.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUnicodeStringSuite.h"

#include <utility>

namespace ai {
namespace {

constexpr AICharacterEncoding kUTF8 = 1;
constexpr ai::uint32 kFirstSupplementary = 0x10000;

void appendUtf16(std::u16string& text, ai::uint32 character) {
    if (character < kFirstSupplementary) {
        text.push_back(static_cast<char16_t>(character));
        return;
    }
    const ai::uint32 offset = character - kFirstSupplementary;
    text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
}

void appendUtf8(std::string& text, ai::uint32 character) {
    const auto tail = [&](int shift) {
        text.push_back(static_cast<char>(0x80 | ((character >> shift) & 0x3F)));
    };
    if (character < 0x80) {
        text.push_back(static_cast<char>(character));
    } else if (character < 0x800) {
        text.push_back(static_cast<char>(0xC0 | (character >> 6)));
        tail(0);
    } else if (character < kFirstSupplementary) {
        text.push_back(static_cast<char>(0xE0 | (character >> 12)));
        tail(6);
        tail(0);
    } else {
        text.push_back(static_cast<char>(0xF0 | (character >> 18)));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// The characters of `string`: the host answers an error one past the last.
template <typename Text> Text read(const UnicodeString& string, void (*append)(Text&, ai::uint32)) {
    Text text;
    ai::uint32 character = 0;
    for (std::size_t i = 0; suites.unicodeString->GetChar(string, i, character) == kNoErr; ++i)
        append(text, character);
    return text;
}

} // namespace

UnicodeString::UnicodeString(std::string_view utf8) {
    check(suites.unicodeString->Initialize(*this, utf8.data(), std::ssize(utf8), kUTF8));
}

UnicodeString::UnicodeString(std::u16string_view utf16) {
    check(suites.unicodeString->InitializeUTF16(
        *this, reinterpret_cast<const ASUnicode*>(utf16.data()), std::ssize(utf16)));
}

UnicodeString::UnicodeString(const UnicodeString& other) {
    if (other.impl_ != nullptr) check(suites.unicodeString->Assign(*this, other));
}

UnicodeString::UnicodeString(UnicodeString&& other) noexcept
    : impl_(std::exchange(other.impl_, nullptr)) {}

UnicodeString& UnicodeString::operator=(UnicodeString other) noexcept {
    std::swap(impl_, other.impl_);
    return *this;
}

UnicodeString::~UnicodeString() {
    // A string that outlives the suites can only be left to the host.
    if (impl_ != nullptr && suites.unicodeString != nullptr) suites.unicodeString->Destroy(*this);
}

std::u16string UnicodeString::utf16() const { return read<std::u16string>(*this, appendUtf16); }

std::string UnicodeString::utf8() const { return read<std::string>(*this, appendUtf8); }

} // namespace ai
