#pragma once

#include "easel/svg/Transform.h"
#include "host/Art.h"

#include <span>
#include <string>

namespace easel::svg {

/// Appends one subpath of path data. Straight pieces become L, H or V. Read again, it gives the
/// same segments bit for bit, but for what an open path's outermost handles are. `offset` is the
/// document's `rulerOffset`.
void appendPathText(std::string& text, std::span<const AIPathSegment> segments, bool closed,
                    Point offset);

/// A coordinate pair of the drawing, as path data has it.
void appendPoint(std::string& text, AIRealPoint point, Point offset);

/// The transform attribute of art with this matrix to soft coordinates.
[[nodiscard]] std::string transformText(const AIRealMatrix& matrix, Point offset);

} // namespace easel::svg
