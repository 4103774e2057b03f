#pragma once

/// What is said about a layout text: where, how bad, and in words.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace NRDM::layout {

/// A place in a text. Both count from 1; a column is a byte of its line, a tab is one column, and
/// CR LF, LF alone and CR alone each end one line.
struct Position {
    int line = 1;
    int column = 1;

    auto operator<=>(const Position&) const = default;
};

/// An error means that no dialog is made; a warning that something in the text is passed over.
enum class Severity { Warning, Error };

struct Message {
    Severity severity = Severity::Error;
    Position position;
    std::string text;
};

using Messages = std::vector<Message>;

/// `message` as one line about `source`, a file's name or a resource's id:
/// `16002(14,31): error: expected ',' or ')' after the value of "width", found '}'`.
[[nodiscard]] std::string format(const Message& message, std::string_view source);

/// A layout that cannot be shown; what() is the message as `format` writes it.
class Error : public std::runtime_error {
public:
    Error(const Message& message, std::string_view source)
        : std::runtime_error(format(message, source)) {}
};

} // namespace NRDM::layout
