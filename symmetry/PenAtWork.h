#pragma once

#include "symmetry/LiveLayerMemory.h"

#include <string_view>

namespace facetta {

inline constexpr std::string_view kPenTool = "Adobe Pen Tool";

/// Whether the host's pen is the tool in hand. Throws `ai::Error`.
[[nodiscard]] bool penIsInHand();

/// Whether the pen in hand is in the middle of a path on `layer`: all that has changed since the
/// layer was as `fit` says is one open path, and that path alone is selected. The pen adds anchors
/// to the very object that it has begun, so until the path is done nobody may replace it.
///
/// The host offers no such question. A path that is wrongly taken for one being drawn is mirrored
/// when the tool or the selection changes. Throws `ai::Error`.
[[nodiscard]] bool penIsDrawing(AILayerHandle layer, const LayerStamp& fit);

} // namespace facetta
