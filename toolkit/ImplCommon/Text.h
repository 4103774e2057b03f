#pragma once

#include "toolkit/suites/ADMTypes.h"

#include <string>
#include <string_view>

namespace NRDM {

/// Texts are UTF-8 inside. What is not well formed becomes U+FFFD.
[[nodiscard]] std::string utf8Of(std::u16string_view text);
[[nodiscard]] std::u16string utf16Of(std::string_view text);

/// The text that a client passes; a null pointer is an empty one.
[[nodiscard]] std::string textFrom(const char* text);
[[nodiscard]] std::string textFrom(const ADMUnicode* text);

/// Copies as much of `text` as `size` units hold with the zero behind them, and no part of a
/// character. Throws `NRDMParameterException` when there is no buffer.
void copyText(const std::string& text, char* buffer, ADMInt32 size);
void copyText(const std::string& text, ADMUnicode* buffer, ADMInt32 size);

/// Characters of `text`.
[[nodiscard]] int lengthOf(std::string_view text);

/// The capital letter that "&" marks in a caption, or 0: "&&" is a plain ampersand.
[[nodiscard]] char32_t accessKeyOf(std::string_view caption);

/// `caption` as it is read: without the marks.
[[nodiscard]] std::string withoutMarks(std::string_view caption);

} // namespace NRDM
