#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Numbers in SVG text, read and written independently of the locale.
namespace easel::svg {

/// Coordinates beyond this are refused or clamped: far outside any canvas, and their squares still
/// fit the host's single-precision reals.
constexpr double kLargestCoordinate = 1e9;

/// Walks over the text of one attribute.
class Cursor {
public:
    explicit Cursor(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    [[nodiscard]] char peek() const { return rest_.empty() ? '\0' : rest_.front(); }
    [[nodiscard]] std::string_view rest() const { return rest_; }

    void skipBlanks();
    /// Blanks with at most one comma among them.
    void skipSeparators();
    bool skip(char wanted);
    bool skipWord(std::string_view wanted);

    /// The number here, with the separators before it. Only finite decimal numbers count: "inf",
    /// "nan" and "0x1" are none, and neither is a number too large for a double.
    [[nodiscard]] std::optional<double> number();
    /// An arc's flag: one digit, 0 or 1, that the next number may follow without a separator.
    [[nodiscard]] std::optional<bool> flag();

private:
    std::string_view rest_;
};

/// The whole of `text` is one number, blanks around it aside.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

/// Numbers separated by blanks or commas; reading stops before what is no number. `complete` says
/// whether the text ended there.
struct NumberList {
    std::vector<double> numbers;
    bool complete = false;
};
[[nodiscard]] NumberList parseNumbers(std::string_view text);

/// A length in user units: 96 to the inch. `whole` is what 100% stands for, `fontSize` what 1em
/// does. Nothing when the text is no length.
[[nodiscard]] std::optional<double> parseLength(std::string_view text, double whole,
                                                double fontSize = 16.0);

/// "50%" as 0.5, "0.5" as 0.5; clamped to 0..1.
[[nodiscard]] std::optional<double> parseFraction(std::string_view text);

/// The shortest text that reads back as the same value, without an exponent where that is not
/// longer than a few digits. Negative zero is written as 0.
void appendNumber(std::string& text, float value);
void appendNumber(std::string& text, double value);
template <typename Real> [[nodiscard]] std::string formatNumber(Real value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

[[nodiscard]] std::string_view trimmed(std::string_view text);
/// `a` and `b` are the same but for the case of ASCII letters.
[[nodiscard]] bool equalIgnoringCase(std::string_view a, std::string_view b);
[[nodiscard]] std::string lowered(std::string_view text);

} // namespace easel::svg
