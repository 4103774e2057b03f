#pragma once

/// Moving the art of a layer together with its axes.
///
///   1. `beginReposition` notes the axes and collects the layer's art.
///   2. `carryLayerArt` moves the art as the axes have moved since. The host takes that back before
///      each message of a drag.
///   3. `keepReposition` stores the axes on the layer and ends it. Taken back instead, the tool
///      shows the layer's axes as it did before.
///
/// All functions throw `ai::Error`.

#include "tool/ToolState.h"

namespace facetta {

void beginReposition(ToolState& state);
void carryLayerArt(const ToolState& state);
void keepReposition(ToolState& state);

} // namespace facetta
