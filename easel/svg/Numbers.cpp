#include "easel/svg/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace easel::svg {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";

bool isBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

struct Unit {
    std::string_view name;
    double userUnits;
};

/// CSS fixes the inch at 96 user units.
constexpr Unit kUnits[] = {
    {"", 1.0},    {"px", 1.0},         {"pt", 96.0 / 72.0}, {"pc", 16.0},
    {"in", 96.0}, {"mm", 96.0 / 25.4}, {"cm", 96.0 / 2.54}, {"q", 96.0 / 101.6},
};

template <typename Real> void appendShortest(std::string& text, Real value) {
    if (value == 0) value = 0; // "-0" would read back as a different sign for no reason
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    text.append(buffer.data(), result.ptr);
}

} // namespace

void Cursor::skipBlanks() {
    while (!rest_.empty() && isBlank(rest_.front()))
        rest_.remove_prefix(1);
}

void Cursor::skipSeparators() {
    skipBlanks();
    if (skip(',')) skipBlanks();
}

bool Cursor::skip(char wanted) {
    if (rest_.empty() || rest_.front() != wanted) return false;
    rest_.remove_prefix(1);
    return true;
}

bool Cursor::skipWord(std::string_view wanted) {
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(wanted.size());
    return true;
}

std::optional<double> Cursor::number() {
    skipSeparators();
    std::string_view text = rest_;
    if (text.starts_with('+')) text.remove_prefix(1);
    const std::size_t sign = text.size() == rest_.size() && text.starts_with('-') ? 1 : 0;
    const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
    if (!isDigit(at(sign)) && !(at(sign) == '.' && isDigit(at(sign + 1)))) return std::nullopt;

    double value = 0.0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc{} || !std::isfinite(value)) return std::nullopt;
    rest_ = {result.ptr, static_cast<std::size_t>(end - result.ptr)};
    return value;
}

std::optional<bool> Cursor::flag() {
    skipSeparators();
    if (skip('0')) return false;
    if (skip('1')) return true;
    return std::nullopt;
}

std::optional<double> parseNumber(std::string_view text) {
    Cursor cursor{trimmed(text)};
    const std::optional<double> value = cursor.peek() == ',' ? std::nullopt : cursor.number();
    return cursor.atEnd() ? value : std::nullopt;
}

NumberList parseNumbers(std::string_view text) {
    Cursor cursor{trimmed(text)};
    NumberList list;
    while (const std::optional<double> value = cursor.number())
        list.numbers.push_back(*value);
    list.complete = cursor.atEnd();
    return list;
}

std::optional<double> parseLength(std::string_view text, double whole, double fontSize) {
    Cursor cursor{trimmed(text)};
    const std::optional<double> value = cursor.number();
    if (!value) return std::nullopt;
    const std::string unit = lowered(cursor.rest());
    if (unit == "%") return *value / 100.0 * whole;
    if (unit == "em") return *value * fontSize;
    if (unit == "ex") return *value * fontSize / 2.0;
    for (const Unit& known : kUnits)
        if (unit == known.name) return *value * known.userUnits;
    return std::nullopt;
}

std::optional<double> parseFraction(std::string_view text) {
    const std::optional<double> value = parseLength(text, 1.0);
    if (!value) return std::nullopt;
    return std::clamp(*value, 0.0, 1.0);
}

void appendNumber(std::string& text, float value) { appendShortest(text, value); }
void appendNumber(std::string& text, double value) { appendShortest(text, value); }

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string lowered(std::string_view text) {
    std::string result{text};
    for (char& c : result)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) { return lowered(a) == lowered(b); }

} // namespace easel::svg
