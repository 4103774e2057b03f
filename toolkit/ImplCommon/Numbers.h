#pragma once

/// Numbers of fields as texts, and back. A number with a unit of length is in points, whatever the
/// unit; percentages, degrees and plain numbers are as they are shown.

#include "toolkit/suites/ADMTypes.h"

#include <optional>
#include <string>
#include <string_view>

namespace NRDM {

/// How a field shows its number, and what may be typed.
struct NumberForm {
    ADMUnits units = kADMNoUnits;
    int precision = 0; ///< decimals, 0..9; `kADMIntegerNumeric` refuses fractions
    bool showsUnits = false;
    bool allowsUnits = true;
    bool allowsMath = true;

    bool operator==(const NumberForm&) const = default;
};

/// What holds for every field.
struct NumberCustoms {
    char16_t separator = u'.';          ///< between whole and fraction; "." is always read as well
    bool plainNumbersArePoints = false; ///< in fields with a unit of length
};

constexpr int kMostDecimals = 9;

/// Is `units` one that there is?
[[nodiscard]] bool isUnit(ADMUnits units);

/// The points in one of `units`; nothing when it is none of length.
[[nodiscard]] std::optional<double> pointsIn(ADMUnits units);

/// `value` rounded to the decimals shown.
[[nodiscard]] double rounded(double value, const NumberForm& form);

[[nodiscard]] std::string textOf(double value, const NumberForm& form,
                                 const NumberCustoms& customs);

/// The number that `text` means in a field that holds `current`, rounded to the decimals shown;
/// nothing when it cannot be read. A blank text is 0. A percentage is one of `current`, unless the
/// field itself is in percent.
[[nodiscard]] std::optional<double> numberIn(std::string_view text, const NumberForm& form,
                                             const NumberCustoms& customs, double current);

} // namespace NRDM
