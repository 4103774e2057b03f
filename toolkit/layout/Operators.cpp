#include "toolkit/layout/Operators.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace NRDM::layout {
namespace {

Value finite(double number) {
    if (!std::isfinite(number)) throw EvaluationError{"the result is out of range"};
    return number;
}

/// `number` cut toward zero, within what both signed and unsigned 32 bits can mean.
std::int64_t integerOf(double number) {
    const double whole = std::trunc(number);
    if (whole < -2147483648.0 || whole > 4294967295.0)
        throw EvaluationError{writtenNumber(number) + " does not fit in 32 bits"};
    return static_cast<std::int64_t>(whole);
}

std::uint32_t bitsOf(double number) { return static_cast<std::uint32_t>(integerOf(number)); }

double quotient(double left, double right) {
    if (right == 0.0) throw EvaluationError{"division by zero"};
    return left / right;
}

double remainderOf(double left, double right) {
    const std::int64_t divisor = integerOf(right);
    if (divisor == 0) throw EvaluationError{"division by zero"};
    return static_cast<double>(integerOf(left) % divisor);
}

int shiftOf(double number) {
    const std::int64_t places = integerOf(number);
    if (places < 0 || places > 31) throw EvaluationError{"a shift is by 0 to 31 places"};
    return static_cast<int>(places);
}

double sum(double a, double b) { return a + b; }
double difference(double a, double b) { return a - b; }
double product(double a, double b) { return a * b; }
double shiftedLeft(double a, double b) { return bitsOf(a) << shiftOf(b); }
double shiftedRight(double a, double b) { return bitsOf(a) >> shiftOf(b); }
double bitOr(double a, double b) { return bitsOf(a) | bitsOf(b); }
double bitXor(double a, double b) { return bitsOf(a) ^ bitsOf(b); }
double bitAnd(double a, double b) { return bitsOf(a) & bitsOf(b); }
double complement(double a) { return ~bitsOf(a); }
bool less(double a, double b) { return a < b; }
bool greater(double a, double b) { return a > b; }
bool lessOrEqual(double a, double b) { return a <= b; }
bool greaterOrEqual(double a, double b) { return a >= b; }

template <double (*compute)(double, double)> Value numeric(const Value& left, const Value& right) {
    const double first = numberIn(left); // the left one is at fault first
    return finite(compute(first, numberIn(right)));
}

template <bool (*compare)(double, double)> Value ordered(const Value& left, const Value& right) {
    const double first = numberIn(left);
    return compare(first, numberIn(right));
}

Value equal(const Value& left, const Value& right) { return left == right; }
Value unequal(const Value& left, const Value& right) { return left != right; }

// The reader asks for the right side only where it counts, so both sides are truths to check.
Value both(const Value& left, const Value& right) { return truthIn(left) && truthIn(right); }
Value either(const Value& left, const Value& right) { return truthIn(left) || truthIn(right); }

constexpr BinaryOperator kBinaryOperators[] = {
    {"||", kLowestPrecedence, either},
    {"&&", 2, both},
    {"|", 3, numeric<bitOr>},
    {"^", 4, numeric<bitXor>},
    {"&", 5, numeric<bitAnd>},
    {"==", 6, equal},
    {"!=", 6, unequal},
    {"<", 7, ordered<less>},
    {">", 7, ordered<greater>},
    {"<=", 7, ordered<lessOrEqual>},
    {">=", 7, ordered<greaterOrEqual>},
    {"<<", 8, numeric<shiftedLeft>},
    {">>", 8, numeric<shiftedRight>},
    {"+", 9, numeric<sum>},
    {"-", 9, numeric<difference>},
    {"*", 10, numeric<product>},
    {"/", 10, numeric<quotient>},
    {"%", 10, numeric<remainderOf>},
};

struct PrefixOperator {
    std::string_view mark;
    Value (*apply)(const Value& operand);
};

constexpr PrefixOperator kPrefixOperators[] = {
    {"+", [](const Value& operand) -> Value { return numberIn(operand); }},
    {"-", [](const Value& operand) -> Value { return -numberIn(operand); }},
    {"!", [](const Value& operand) -> Value { return !truthIn(operand); }},
    {"~", [](const Value& operand) -> Value { return complement(numberIn(operand)); }},
};

} // namespace

double numberIn(const Value& value) {
    if (const double* number = std::get_if<double>(&value)) return *number;
    throw EvaluationError{"a number is needed, not " + describe(value)};
}

bool truthIn(const Value& value) {
    if (const bool* truth = std::get_if<bool>(&value)) return *truth;
    throw EvaluationError{"yes or no is needed, not " + describe(value)};
}

const BinaryOperator* findBinaryOperator(std::string_view mark) {
    const auto* found = std::ranges::find(kBinaryOperators, mark, &BinaryOperator::mark);
    return found == std::end(kBinaryOperators) ? nullptr : found;
}

bool isPrefixOperator(std::string_view mark) {
    return std::ranges::find(kPrefixOperators, mark, &PrefixOperator::mark) !=
           std::end(kPrefixOperators);
}

Value applyPrefix(std::string_view mark, const Value& operand) {
    return std::ranges::find(kPrefixOperators, mark, &PrefixOperator::mark)->apply(operand);
}

} // namespace NRDM::layout
