#pragma once

/// Paths as text in the manner of SVG, with y upwards, so that tests show what they draw.

#include "symmetry/geometry/PathShape.h"

#include <string>
#include <string_view>

namespace facetta::tests {

/// The path of an absolute `text` of M, L, C and Z. A closing point equal to the first one is left
/// out, so that a curve can lead back to the start.
[[nodiscard]] PathShape shapeOf(std::string_view text);

/// The text of a path, its coordinates rounded to hundredths.
[[nodiscard]] std::string textOf(const PathShape& shape);

} // namespace facetta::tests
