#pragma once

/// The values of the layout language.

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace NRDM::layout {

/// `empty`, a truth, a number, a text (UTF-8) or a list of numbers. There is no conversion between
/// them. Every number is finite; it is cut to a whole one only where a key asks for one.
using Value = std::variant<std::monostate, bool, double, std::string, std::vector<double>>;

/// `value` in the words of a message: `the number 5`, `the text "OK"`, `yes`, `a list`, `empty`.
[[nodiscard]] std::string describe(const Value& value);

/// `value` as the language writes it. What is written reads back as the same value. Must not be
/// `empty`, which no attribute holds.
[[nodiscard]] std::string written(const Value& value);

/// `number` in the fewest plain digits that read back as it, whatever the locale.
[[nodiscard]] std::string writtenNumber(double number);

} // namespace NRDM::layout
