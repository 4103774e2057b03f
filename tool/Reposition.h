#pragma once

/// Moving the art of a layer together with its axes.
///
///   1. `beginReposition` notes the axes and collects the layer's art.
///   2. `carryLayerArt` moves the art as the axes have moved since. The host takes that back before
///      each message of a drag.
///   3. `keepReposition` stores the axes on the layer; `endReposition` ends it, kept or not.

#include "tool/ToolState.h"

namespace facetta {

/// Throws `ai::Error`.
void beginReposition(ToolState& state);

/// Throws `ai::Error`.
void carryLayerArt(const ToolState& state);

/// Throws `ai::Error`.
void keepReposition(const ToolState& state);

void endReposition(ToolState& state) noexcept;

} // namespace facetta
