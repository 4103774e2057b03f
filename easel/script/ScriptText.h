#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace easel::script {

/// What is wrong with a line of a script: "what is wrong; what would be right".
struct Mistake : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Word {
    std::string text;
    bool quoted = false; ///< Never a keyword.
};

/// The words of one line. They are separated by blanks; one that holds blanks, or none at all,
/// stands between double quotes, in which a backslash makes the next character an ordinary one. A
/// comment goes from a "#" that begins a word to the end of the line. Throws Mistake.
[[nodiscard]] std::vector<Word> wordsOf(std::string_view line);

/// The lines without their ends; "\r\n" ends one as "\n" does.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

} // namespace easel::script
