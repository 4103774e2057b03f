#pragma once

#include "easel/document/Art.h"

#include <optional>

namespace easel {

/// The rectangle around `art` as `flags` (`AIArtBoundsOptions`) ask, in soft coordinates, each
/// point taken through `matrix` first. Curves count with their true extremes, strokes with half
/// their width all round. Empty when nothing counts.
[[nodiscard]] std::optional<AIDoubleRect> boundsOf(const Art& art, ai::int32 flags,
                                                   const AIRealMatrix& matrix = kIdentityMatrix);

} // namespace easel
