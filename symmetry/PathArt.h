#pragma once

/// The host's path art as a value, and back. All functions throw `ai::Error`.

#include "host/Art.h"
#include "host/Handles.h"
#include "symmetry/PathShape.h"

namespace facetta {

/// The path `path`. `selection` holds its attributes `kArtSelected` and `kArtFullySelected`: they
/// save asking about the anchors one by one unless some are selected and some are not.
[[nodiscard]] PathShape readPath(AIArtHandle path, ai::int32 selection);

/// Gives `path` the segments and the closed state of `shape`; 'SEGM' when they are more than the
/// host allows.
void writePath(AIArtHandle path, const PathShape& shape);

/// Selects of `path`, which is not selected and holds `shape`, what is selected in `shape`.
void selectAnchors(AIArtHandle path, const PathShape& shape);

} // namespace facetta
