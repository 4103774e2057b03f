#pragma once

#include <cstddef>

namespace facetta::bench {

/// The least that mirroring `segments` segments can cost: the seconds that a plain loop takes to
/// read that many 28-byte records, map their three points in 64-bit reals and store them.
[[nodiscard]] double floorSeconds(std::size_t segments);

} // namespace facetta::bench
