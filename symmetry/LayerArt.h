#pragma once

/// Changes to all the art of a layer that keep it symmetric. All functions throw `ai::Error`.

#include "host/References.h"
#include "symmetry/MirrorEngine.h"
#include "symmetry/geometry/Geometry.h"

namespace facetta {

/// The art that moves with the axes of the current top-level layer: what is mirrored, what was
/// generated from it, and the guides along the axes. What the user has locked or hidden stays where
/// it is.
[[nodiscard]] ai::ArtSet collectLayerArt();

/// Maps the members of `art`, locked copies among them.
void moveArt(const ai::ArtSet& art, const Matrix& motion);

/// Makes the sector that `environment.currentAxes` has as its active one that of the current layer.
/// The former active sector lies `picked` (1 to 2N - 1) sectors clockwise of it: the source art
/// moves over from there, so that the layer looks as before.
void changeActiveSector(const MirrorEnvironment& environment, int picked);

} // namespace facetta
