#pragma once

/// The axes of a layer as guides of the host's, which stay visible and attract art while the tool
/// is away. They are marked with `GuideTag`. All functions throw `ai::Error`.

#include "host/Handles.h"
#include "symmetry/SymmetryAxes.h"

namespace facetta {

/// One guide along each axis, from edge to edge of the canvas, in front of all else on the current
/// top-level layer. An axis that misses the canvas gets none.
void addAxisGuides(const SymmetryAxes& axes);

/// Takes the guides off `layer` and its sublayers (null: the current top-level layer). What the
/// user has made into something else loses its mark and stays, as everything does with `untagOnly`.
/// Returns whether there were any.
bool removeAxisGuides(AILayerHandle layer, bool untagOnly);

/// Has the current top-level layer any? False without a document or a layer.
[[nodiscard]] bool layerHasAxisGuides();

} // namespace facetta
