#pragma once

#include "host/Handles.h"

#include <vector>

namespace facetta {

/// The objects in `set` in their order. Throws `ai::Error`.
[[nodiscard]] std::vector<AIArtHandle> membersOf(AIArtSet set);

/// The selected objects, containers with a selected part among them, in paint order, a container
/// before what it contains. Throws `ai::Error`.
[[nodiscard]] std::vector<AIArtHandle> selectedArt();

/// The paths of the current document that are neither locked nor hidden themselves; what they lie
/// in may be. Throws `ai::Error`.
[[nodiscard]] std::vector<AIArtHandle> freePaths();

/// Every object on `layer` (not null) and its sublayers, in the same order; the groups of layers
/// may be among them. Throws `ai::Error`.
[[nodiscard]] std::vector<AIArtHandle> artOnLayer(AILayerHandle layer);

/// Those of them that are hidden or not locked, in whatever order. Throws `ai::Error`.
[[nodiscard]] std::vector<AIArtHandle> openArtOnLayer(AILayerHandle layer);

} // namespace facetta
