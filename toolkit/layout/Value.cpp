#include "toolkit/layout/Value.h"

#include <array>
#include <cassert>
#include <charconv>

namespace NRDM::layout {
namespace {

/// `text` between quotes. There are no escapes: where it holds the quote itself, it is written in
/// pieces between quotes of either kind, which the reader joins.
std::string inQuotes(std::string_view text) {
    std::string result;
    do {
        const char quote = text.starts_with('"') ? '\'' : '"';
        const std::string_view piece = text.substr(0, text.find(quote));
        if (!result.empty()) result += ' ';
        result += quote;
        result += piece;
        result += quote;
        text.remove_prefix(piece.size());
    } while (!text.empty());
    return result;
}

std::string writtenList(const std::vector<double>& numbers) {
    std::string result = "[";
    for (const double number : numbers) {
        if (result.size() > 1) result += ", ";
        result += writtenNumber(number);
    }
    return result + ']';
}

} // namespace

std::string writtenNumber(double number) {
    // The largest number has 309 digits before its point, the smallest some 1,080 behind it.
    std::array<char, 1200> digits;
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                            std::chars_format::fixed);
    assert(error == std::errc());
    return {digits.data(), end};
}

std::string written(const Value& value) {
    assert(!std::holds_alternative<std::monostate>(value));
    if (const bool* truth = std::get_if<bool>(&value)) return *truth ? "yes" : "no";
    if (const double* number = std::get_if<double>(&value)) return writtenNumber(*number);
    if (const auto* text = std::get_if<std::string>(&value)) return inQuotes(*text);
    return writtenList(std::get<std::vector<double>>(value));
}

std::string describe(const Value& value) {
    if (std::holds_alternative<std::monostate>(value)) return "empty";
    if (std::holds_alternative<std::vector<double>>(value)) return "a list";
    if (std::holds_alternative<double>(value)) return "the number " + written(value);
    if (std::holds_alternative<std::string>(value)) return "the text " + written(value);
    return written(value);
}

} // namespace NRDM::layout
