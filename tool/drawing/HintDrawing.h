#pragma once

#include "tool/ToolSession.h"
#include "tool/drawing/Surface.h"

#include <string>

namespace facetta {

/// The bottom left of a hint's text beside a cursor at `cursor`, for a text of `width` by `height`:
/// to the right and above, moved as far as it takes to stay inside `view` with its box. Pixels.
[[nodiscard]] AIPoint hintTextAt(AIPoint cursor, ai::int32 width, ai::int32 height,
                                 const PixelRect& view);

/// Everything that a hint beside a cursor that went from `a` to `b` may cover, in pixels.
[[nodiscard]] AIRect hintReach(AIPoint a, AIPoint b);

/// How opaque a hint shown since `stamp` is at the time `now` (milliseconds): it fades out at the
/// end of its life.
[[nodiscard]] double hintOpacity(const Hint& hint, ai::uint64 now);

/// Draws the hint, when there is one at the time `now`, beside the tool's cursor; `words` is its
/// text. Throws `ai::Error`.
void drawHint(const Surface& surface, const ToolState& state, const std::u16string& words,
              ai::uint64 now);

} // namespace facetta
