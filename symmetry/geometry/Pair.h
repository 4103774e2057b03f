#pragma once

#include <emmintrin.h>

namespace facetta {

/// Two numbers on which the processor works at once. Sums, products and comparisons go from number
/// to number and round as single ones do, so that the results are the same to the bit.
using Pair = __m128d;

/// Of numbers that do not compare, the second one.
[[nodiscard]] inline Pair lesser(Pair a, Pair b) { return _mm_min_pd(a, b); }
[[nodiscard]] inline Pair greater(Pair a, Pair b) { return _mm_max_pd(a, b); }

/// Both brought to the nearest 32-bit values, which their ranges must hold.
[[nodiscard]] inline Pair inSinglePrecision(Pair a) { return _mm_cvtps_pd(_mm_cvtpd_ps(a)); }

} // namespace facetta
