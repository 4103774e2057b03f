#pragma once

namespace facetta {

/// Two numbers on which the processor works at once. Sums, products and comparisons go from number
/// to number and round as single ones do, so that the results are the same to the bit.
using Pair [[gnu::vector_size(2 * sizeof(double))]] = double;

/// Of numbers that do not compare, the second one.
[[nodiscard]] inline Pair lesser(Pair a, Pair b) { return a < b ? a : b; }
[[nodiscard]] inline Pair greater(Pair a, Pair b) { return a > b ? a : b; }

/// The nearest 32-bit values; infinite where those do not reach.
[[nodiscard]] inline Pair inSinglePrecision(Pair a) {
    using Singles [[gnu::vector_size(2 * sizeof(float))]] = float;
    return __builtin_convertvector(__builtin_convertvector(a, Singles), Pair);
}

} // namespace facetta
