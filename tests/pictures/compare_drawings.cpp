#include <charconv>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

// compare_drawings A B TOLERANCE: two drawings are the same when their texts are, but for numbers
// that differ by at most the tolerance. Says what differs first and ends with 1 otherwise.

namespace {

std::string textOf(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The number at the start of `text`; its length is 0 when there is none.
struct Number {
    double value = 0.0;
    std::size_t length = 0;
};

Number numberAt(std::string_view text) {
    Number number;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number.value);
    if (error == std::errc()) number.length = static_cast<std::size_t>(end - text.data());
    return number;
}

/// Where the texts differ, counted from the start of `a`; npos when they are the same.
std::size_t firstDifference(std::string_view a, std::string_view b, double tolerance) {
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() || j < b.size()) {
        const Number one = numberAt(a.substr(std::min(i, a.size())));
        const Number other = numberAt(b.substr(std::min(j, b.size())));
        if (one.length > 0 && other.length > 0) {
            if (std::abs(one.value - other.value) > tolerance) return i;
            i += one.length;
            j += other.length;
        } else if (i < a.size() && j < b.size() && a[i] == b[j]) {
            ++i;
            ++j;
        } else {
            return i;
        }
    }
    return std::string_view::npos;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::cerr << "usage: compare_drawings A B TOLERANCE\n";
        return 2;
    }
    const std::string a = textOf(arguments[1]);
    const std::string b = textOf(arguments[2]);
    const Number tolerance = numberAt(arguments[3]);
    if (a.empty() || b.empty() || tolerance.length == 0) {
        std::cerr << "compare_drawings: nothing to compare in " << arguments[a.empty() ? 1 : 2]
                  << '\n';
        return 1;
    }
    const std::size_t place = firstDifference(a, b, tolerance.value);
    if (place == std::string::npos) return 0;
    constexpr std::size_t kShown = 60;
    std::cerr << arguments[1] << " and " << arguments[2] << " differ at byte " << place << ": "
              << a.substr(place, kShown) << '\n';
    return 1;
}
