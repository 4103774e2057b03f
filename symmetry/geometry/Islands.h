#pragma once

/// Which members of a compound path belong together.

#include "symmetry/geometry/PathShape.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace facetta {

/// What counts as inside of a path that winds around a place several times.
enum class FillRule : std::uint8_t { NonZero, EvenOdd };

/// How often `path`, closed by a straight line if it is open, winds around `point`
/// counter-clockwise.
[[nodiscard]] int windingNumber(const PathShape& path, Point point);

/// The island of each member, numbered from 0 in the order of their first members. An island is an
/// outline, around which nothing is filled, with what lies inside it: its holes and what overlaps
/// it. What is filled inside a hole is an island of its own.
[[nodiscard]] std::vector<std::size_t> islandsOf(std::span<const PathShape> members, FillRule rule);

} // namespace facetta
