#include "symmetry/RealText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace facetta {
namespace {

constexpr int kDecimals = 15;

// Sign, the 309 digits of the largest value, point, decimals.
constexpr std::size_t kLongestText = 1 + 309 + 1 + kDecimals;

} // namespace

std::string realText(double value) {
    std::array<char, kLongestText> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                      std::isfinite(value) ? value : 0.0, std::chars_format::fixed, kDecimals);
    return error == std::errc{} ? std::string(buffer.data(), end) : std::string{};
}

double parseReal(std::string_view text) {
    // std::from_chars knows no locale, but neither skips blanks nor takes a plus sign.
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && std::isfinite(value) ? value : 0.0;
}

} // namespace facetta
