#pragma once

/// Real numbers as the text that a document keeps, the same in every locale.

#include <string>
#include <string_view>

namespace facetta {

/// `value` in fixed notation with 15 decimals, as 100.000000000000000; 0 for what is not finite.
[[nodiscard]] std::string realText(double value);

/// The decimal number that `text` begins with, after blanks; 0 when there is none or when it is not
/// finite.
[[nodiscard]] double parseReal(std::string_view text);

} // namespace facetta
