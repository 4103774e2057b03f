#pragma once

/// What the operators of the layout language do to values.

#include "toolkit/layout/Value.h"

#include <string>
#include <string_view>

namespace NRDM::layout {

/// Why a value cannot be had: an operand of the wrong type, a division by zero, a result that no
/// finite number holds.
struct EvaluationError {
    std::string text;
};

struct BinaryOperator {
    std::string_view mark;
    int precedence; ///< higher binds tighter; all group to the left
    /// The result, or throws EvaluationError.
    Value (*apply)(const Value& left, const Value& right);
};

constexpr int kLowestPrecedence = 1;

/// The operator written `mark` between two values, or null.
[[nodiscard]] const BinaryOperator* findBinaryOperator(std::string_view mark);

/// Whether `mark` may stand before a value: + - ! ~
[[nodiscard]] bool isPrefixOperator(std::string_view mark);
[[nodiscard]] Value applyPrefix(std::string_view mark, const Value& operand);

/// The truth in `value`, or throws EvaluationError.
[[nodiscard]] bool truthIn(const Value& value);

/// The number in `value`, or throws EvaluationError.
[[nodiscard]] double numberIn(const Value& value);

} // namespace NRDM::layout
