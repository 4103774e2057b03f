#pragma once

/// The characters of a layout text, as words, numbers, strings and marks.

#include "toolkit/layout/Messages.h"

#include <string_view>
#include <vector>

namespace NRDM::layout {

enum class TokenType { Word, Number, String, Mark, End, Invalid };

struct Token {
    TokenType type = TokenType::End;
    /// The word or mark itself, the characters between the quotes of a string, what is wrong with
    /// an invalid token. Points into the text that was read or to what lives for ever.
    std::string_view text;
    double number = 0.0; ///< of a number; finite
    Position position;   ///< where it begins; of an invalid token, the byte at fault
};

/// The tokens of `text`, white space and comments left out; the last one is `End`. What cannot be
/// read becomes an `Invalid` token, and reading goes on behind it: whether it matters is for the
/// parser to say. A UTF-8 mark at the start is skipped and takes no column.
[[nodiscard]] std::vector<Token> tokenise(std::string_view text);

} // namespace NRDM::layout
