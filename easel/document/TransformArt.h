#pragma once

#include "easel/document/Art.h"

namespace easel {

/// Applies `matrix` (soft coordinates) as `flags` (`AITransformArtOptions`) say; `lineScale` is the
/// factor for stroke widths when they are to scale. Each coordinate is computed in double
/// precision and rounded once. Asks nothing about locks.
void transformArt(Art& art, const AIRealMatrix& matrix, AIReal lineScale, ai::int32 flags);

/// The same for one object, whatever the flags say of children. `edit` says what it counts as.
void transformObject(Art& art, const AIRealMatrix& matrix, AIReal lineScale, ai::int32 flags,
                     Edit edit = Edit::Art);

[[nodiscard]] AIRealPoint transformed(const AIRealMatrix& matrix, AIRealPoint point) noexcept;
/// First `first`, then `second`.
[[nodiscard]] AIRealMatrix concatenated(const AIRealMatrix& first,
                                        const AIRealMatrix& second) noexcept;

} // namespace easel
