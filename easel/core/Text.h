#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Text between encodings. Inside, text that is counted in characters is UTF-32.

namespace easel {

/// The character at the start of `text`, which is cut off it. Nothing where that is no UTF-8.
[[nodiscard]] std::optional<char32_t> takeUtf8(std::string_view& text);
/// Throws `ai::Error` 'US!F' when `text` is not valid UTF-8.
[[nodiscard]] std::u32string utf32FromUtf8(std::string_view text);
/// An unpaired surrogate is kept as it is: names of files may hold one.
[[nodiscard]] std::u32string utf32FromUtf16(std::u16string_view text);
/// What has no UTF-8 form becomes U+FFFD.
[[nodiscard]] std::string utf8FromUtf32(std::u32string_view text);
[[nodiscard]] std::u16string utf16FromUtf32(std::u32string_view text);

[[nodiscard]] inline std::string utf8FromUtf16(std::u16string_view text) {
    return utf8FromUtf32(utf32FromUtf16(text));
}

} // namespace easel
