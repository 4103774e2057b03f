#include "toolkit/ImplCommon/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace NRDM {
namespace {

constexpr double kPointsInInch = 72;
constexpr double kPointsInMillimetre = kPointsInInch / 25.4;
constexpr double kPointsInPica = 12;

struct UnitRow {
    ADMUnits units;
    double points; ///< 0: none of length
    std::string_view shown;
    std::array<std::string_view, 2> typed; ///< in small letters
};

/// In the order of their numbers.
constexpr UnitRow kUnits[] = {
    {kADMNoUnits, 0, "", {}},
    {kADMPointUnits, 1, " pt", {"pt"}},
    {kADMInchUnits, kPointsInInch, " in", {"in", "\""}},
    {kADMMillimeterUnits, kPointsInMillimetre, " mm", {"mm"}},
    {kADMCentimeterUnits, 10 * kPointsInMillimetre, " cm", {"cm"}},
    {kADMPicaUnits, kPointsInPica, "", {"p", "pc"}}, // the number says it already
    {kADMPercentUnits, 0, "%", {}},
    {kADMDegreeUnits, 0, "\u00B0", {}},
    {kADMQUnits, kPointsInMillimetre / 4, " Q", {"q"}},
    {kADMBase16Units, 0, "", {}},
    {kADMPixelUnits, 1, " px", {"px"}},
    {kADMTimeUnits, 0, "", {}},
    {kADMHaUnits, kPointsInMillimetre / 4, " Ha", {"ha"}},
};
static_assert([] {
    for (std::size_t i = 0; i < std::size(kUnits); ++i)
        if (kUnits[i].units != static_cast<ADMUnits>(i)) return false;
    return true;
}());

const UnitRow& rowOf(ADMUnits units) { return kUnits[static_cast<std::size_t>(units)]; }

int decimalsOf(const NumberForm& form) { return std::clamp(form.precision, 0, kMostDecimals); }

double roundedTo(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    const double whole = std::round(value * scale);
    // Beyond the whole numbers of a double there is nothing left to round.
    return std::isfinite(whole) && std::abs(whole) < 1e15 ? whole / scale : value;
}

/// `value` through `format`, which itself is made by putting the precision into `pattern`.
template <typename... Values>
std::string formatted(const char* pattern, int decimals, Values... values) {
    std::array<char, 32> format{};
    std::snprintf(format.data(), format.size(), pattern, decimals);
    std::array<char, 400> text{}; // the longest double has 309 digits before the point
    std::snprintf(text.data(), text.size(), format.data(), values...);
    return text.data();
}

/// Whichever mark stands between whole and fraction becomes `separator`.
void setSeparator(std::string& number, char16_t separator) {
    const std::size_t mark = number.find_last_of(".,");
    if (mark != std::string::npos) number[mark] = separator == u',' ? ',' : '.';
}

std::string picasText(double points, int decimals) {
    const double magnitude = roundedTo(std::abs(points), decimals);
    const int picas = static_cast<int>(std::min(magnitude / kPointsInPica, 1e9));
    const char* const sign = points < 0 && magnitude > 0 ? "-" : "";
    return formatted("%%s%%ip%%.%if", decimals, sign, picas, magnitude - kPointsInPica * picas);
}

/// A number met while reading: a length in points, or a plain number without a unit.
struct Quantity {
    double value = 0;
    bool isLength = false;
};

/// Reads sums and products of numbers with units. Nothing is read any more after a mistake.
class Reader {
public:
    Reader(std::string_view text, const NumberForm& form, const NumberCustoms& customs,
           double current)
        : rest_(text), form_(form), customs_(customs), current_(current) {}

    /// The value in the field's own scale; nothing for a text with a mistake in it.
    std::optional<double> read() {
        skipBlanks();
        if (rest_.empty()) return 0;
        const Quantity result = sum();
        const double value = inField(result);
        if (failed_ || !rest_.empty() || !std::isfinite(value)) return std::nullopt;
        return value;
    }

private:
    void skipBlanks() {
        constexpr std::string_view kBlanks = " \t";
        while (!rest_.empty() && kBlanks.find(rest_.front()) != std::string_view::npos)
            rest_.remove_prefix(1);
    }

    bool take(std::string_view mark) {
        if (!rest_.starts_with(mark)) return false;
        rest_.remove_prefix(mark.size());
        skipBlanks();
        return true;
    }

    bool takeOperator(std::string_view mark) {
        if (!rest_.starts_with(mark)) return false;
        if (!form_.allowsMath) failed_ = true;
        return take(mark);
    }

    Quantity mistake() {
        failed_ = true;
        return {};
    }

    [[nodiscard]] bool fieldIsLength() const { return pointsIn(form_.units).has_value(); }

    /// What `quantity` is in the field's scale.
    double inField(const Quantity& quantity) {
        if (quantity.isLength == fieldIsLength()) return quantity.value;
        if (quantity.isLength) return mistake().value;
        return customs_.plainNumbersArePoints ? quantity.value
                                              : quantity.value * *pointsIn(form_.units);
    }

    Quantity sum() {
        Quantity total = product();
        while (!failed_) {
            const double sign = takeOperator("+") ? 1 : takeOperator("-") ? -1 : 0;
            if (sign == 0) break;
            const Quantity next = product();
            total = {inField(total) + sign * inField(next), fieldIsLength()};
        }
        return total;
    }

    Quantity product() {
        Quantity total = factor();
        while (!failed_) {
            if (takeOperator("*")) {
                const Quantity next = factor();
                if (total.isLength && next.isLength) return mistake();
                total = {total.value * next.value, total.isLength || next.isLength};
            } else if (takeOperator("/")) {
                const Quantity next = factor();
                if (next.isLength && !total.isLength) return mistake();
                total = {total.value / next.value, total.isLength && !next.isLength};
            } else {
                break;
            }
        }
        return total;
    }

    Quantity factor() {
        constexpr int kDeepest = 32; // ends texts of nothing but parentheses or signs
        const struct Deeper {
            int& depth;
            explicit Deeper(int& value) : depth(value) { ++depth; }
            ~Deeper() { --depth; }
        } deeper(depth_);
        if (depth_ > kDeepest) return mistake();
        if (take("+")) return factor();
        if (take("-")) {
            const Quantity opposite = factor();
            return {-opposite.value, opposite.isLength};
        }
        if (takeOperator("(")) {
            const Quantity inner = sum();
            return take(")") ? inner : mistake();
        }
        return measured();
    }

    /// A number and its unit.
    Quantity measured() {
        const std::optional<double> number = plainNumber();
        if (!number) return mistake();
        skipBlanks();
        if (take("%")) return percentage(*number);
        if (form_.units == kADMDegreeUnits && take("\u00B0")) return {*number};
        const UnitRow* const unit = takeUnit();
        if (unit == nullptr) return {*number};
        // What the field itself shows may always be typed.
        const bool shown = unit->units == form_.units && (form_.showsUnits || isPicas(unit->units));
        if (!form_.allowsUnits && !shown) return mistake();
        double points = *number * unit->points;
        if (isPicas(unit->units)) points += plainNumber().value_or(0); // "1p6"
        skipBlanks();
        return {points, true};
    }

    static bool isPicas(ADMUnits units) { return units == kADMPicaUnits; }

    Quantity percentage(double percents) {
        if (form_.units == kADMPercentUnits) return {percents};
        if (!form_.allowsMath) return mistake();
        return {current_ * percents / 100, fieldIsLength()};
    }

    /// Digits with at most one separator among them.
    std::optional<double> plainNumber() {
        std::string digits;
        while (!rest_.empty()) {
            const char c = rest_.front();
            const bool separates = c == '.' || (customs_.separator < 0x80 &&
                                                c == static_cast<char>(customs_.separator));
            if (!separates && (c < '0' || c > '9')) break;
            digits.push_back(separates ? '.' : c);
            rest_.remove_prefix(1);
        }
        double number = 0;
        const char* const end = digits.data() + digits.size();
        const auto [stop, error] =
            std::from_chars(digits.data(), end, number, std::chars_format::fixed);
        if (error != std::errc() || stop != end) return std::nullopt;
        return number;
    }

    /// The unit that the text goes on with, or null.
    const UnitRow* takeUnit() {
        const UnitRow* found = nullptr;
        std::size_t length = 0;
        for (const UnitRow& row : kUnits)
            for (const std::string_view name : row.typed)
                if (name.size() > length && startsWithUnit(name)) {
                    found = &row;
                    length = name.size();
                }
        rest_.remove_prefix(length);
        return found;
    }

    [[nodiscard]] bool startsWithUnit(std::string_view name) const {
        return rest_.size() >= name.size() &&
               std::ranges::equal(rest_.substr(0, name.size()), name, [](char typed, char small) {
                   return (typed >= 'A' && typed <= 'Z' ? typed - 'A' + 'a' : typed) == small;
               });
    }

    std::string_view rest_;
    const NumberForm& form_;
    const NumberCustoms& customs_;
    double current_;
    int depth_ = 0;
    bool failed_ = false;
};

} // namespace

bool isUnit(ADMUnits units) {
    return units >= 0 && static_cast<std::size_t>(units) < std::size(kUnits);
}

std::optional<double> pointsIn(ADMUnits units) {
    const double points = rowOf(units).points;
    return points > 0 ? std::optional(points) : std::nullopt;
}

double rounded(double value, const NumberForm& form) {
    if (form.units == kADMPicaUnits)
        return roundedTo(value, decimalsOf(form)); // decimals of points
    const double unit = pointsIn(form.units).value_or(1);
    return roundedTo(value / unit, decimalsOf(form)) * unit;
}

std::string textOf(double value, const NumberForm& form, const NumberCustoms& customs) {
    const int decimals = decimalsOf(form);
    const double shown = roundedTo(value / pointsIn(form.units).value_or(1), decimals);
    std::string text = form.units == kADMPicaUnits
                           ? picasText(value, decimals)
                           : formatted("%%.%if", decimals, shown == 0 ? 0.0 : shown);
    setSeparator(text, customs.separator);
    if (form.showsUnits) text += rowOf(form.units).shown;
    return text;
}

std::optional<double> numberIn(std::string_view text, const NumberForm& form,
                               const NumberCustoms& customs, double current) {
    const std::optional<double> value = Reader(text, form, customs, current).read();
    if (!value) return std::nullopt;
    const double result = rounded(*value, form);
    if (form.precision == kADMIntegerNumeric && result != *value) return std::nullopt;
    return result;
}

} // namespace NRDM
