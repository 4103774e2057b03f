#include "toolkit/ImplCommon/Numbers.h"

#include <doctest/doctest.h>

#include <string>

using namespace NRDM;

TEST_CASE("a number is written with its decimals and unit") {
    struct Row {
        double value;
        NumberForm form;
        std::string text;
        char16_t separator = u'.';
    };
    const Row rows[] = {
        {1.5, {.precision = 3}, "1.500"},
        {72, {.units = kADMInchUnits, .precision = 4}, "1.0000"},
        {72, {.units = kADMInchUnits, .precision = 1, .showsUnits = true}, "1.0 in"},
        {72 / 25.4, {.units = kADMMillimeterUnits, .precision = 2, .showsUnits = true}, "1.00 mm"},
        {45, {.units = kADMDegreeUnits, .precision = 0, .showsUnits = true}, "45\u00B0"},
        {55, {.units = kADMPercentUnits, .showsUnits = true}, "55%"},
        {-0.0001, {.precision = 3}, "0.000"},
        {2.5, {.precision = 1}, "2,5", u','},
        {-18, {.units = kADMPicaUnits}, "-1p6"},
        {11.9996, {.units = kADMPicaUnits, .precision = 3}, "1p0.000"},
        {-0.0001, {.units = kADMPicaUnits, .precision = 3}, "0p0.000"},
        {30.25, {.units = kADMPicaUnits, .precision = 2, .showsUnits = true}, "2p6.25"},
        {7, {.precision = kADMIntegerNumeric}, "7"},
    };
    for (const auto& row : rows) {
        INFO(row.text);
        CHECK(textOf(row.value, row.form, {.separator = row.separator}) == row.text);
    }
}

TEST_CASE("what is typed is read in the field's unit, with other units, sums and percentages") {
    struct Row {
        std::string text;
        NumberForm form;
        double current;
        double value;
    };
    const NumberForm plain{.precision = 3};
    const NumberForm points{.units = kADMPointUnits, .precision = 3};
    const NumberForm inches{.units = kADMInchUnits, .precision = 3};
    const NumberForm percent{.units = kADMPercentUnits, .precision = 1};
    const Row rows[] = {
        {"", plain, 5, 0},
        {"  ", plain, 5, 0},
        {" 1.5 ", plain, 0, 1.5},
        {"1,5", plain, 0, 1.5},
        {".5", plain, 0, 0.5},
        {"-5", plain, 0, -5},
        {"2.34567", plain, 0, 2.346},
        {"1in", points, 0, 72},
        {"1 IN", points, 0, 72},
        {"2\"", points, 0, 144},
        {"1p6", points, 0, 18},
        {"-1p6", points, 0, -18},
        {"36pt", inches, 0, 36},
        {"1", inches, 0, 72},
        {"10+5", plain, 0, 15},
        {"2+3*4", plain, 0, 14},
        {"(2+3)*4", plain, 0, 20},
        {"10/4", plain, 0, 2.5},
        {"1in+1", points, 0, 73},
        {"2*1in", points, 0, 144},
        {"1in/1pt", plain, 0, 72},
        {"150%", points, 10, 15},
        {"1in+10%", points, 100, 82},
        {"150%", percent, 10, 150},
        {"45\u00B0", {.units = kADMDegreeUnits, .allowsUnits = false}, 0, 45},
        {"1p6", {.units = kADMPicaUnits, .allowsUnits = false}, 0, 18},
        {"5 pt", {.units = kADMPointUnits, .showsUnits = true, .allowsUnits = false}, 0, 5},
    };
    for (const auto& row : rows) {
        INFO(row.text);
        const auto value = numberIn(row.text, row.form, {.separator = u','}, row.current);
        REQUIRE(value.has_value());
        CHECK(*value == doctest::Approx(row.value));
    }
    CHECK(numberIn("36", inches, {.plainNumbersArePoints = true}, 0) == 36.0);
}

TEST_CASE("what is no number, or not allowed, is not read") {
    struct Row {
        std::string text;
        NumberForm form;
    };
    const NumberForm points{.units = kADMPointUnits, .precision = 3};
    const Row rows[] = {
        {"abc", points},
        {"1..2", points},
        {"1+", points},
        {"(1", points},
        {"1)", points},
        {"1/0", points},
        {"1in*1in", points},
        {"1/1in", points},
        {"1in", {}},
        {"1in", {.units = kADMPointUnits, .allowsUnits = false}},
        {"1+1", {.allowsMath = false}},
        {"50%", {.allowsMath = false}},
        {"1.5", {.precision = kADMIntegerNumeric}},
        {"5 mm x", points},
        {"45\u00B0", points},
        {std::string(1000, '('), points},
        {std::string(1000, '-') + "1", points},
    };
    for (const auto& row : rows) {
        INFO(row.text.substr(0, 20));
        CHECK_FALSE(numberIn(row.text, row.form, {}, 0).has_value());
    }
}

TEST_CASE("every number reads back as what was written") {
    for (ADMUnits units = kADMNoUnits; isUnit(units); ++units)
        for (const double value : {0.0, 1.0, -7.25, 359.999, 16383.5, -0.004})
            for (const int precision : {0, 3}) {
                const NumberForm form{.units = units, .precision = precision, .showsUnits = true};
                const std::string text = textOf(value, form, {});
                INFO(text);
                const auto read = numberIn(text, form, {}, 0);
                REQUIRE(read.has_value());
                CHECK(textOf(*read, form, {}) == text);
            }
}
