#pragma once

/// Layers that keep their art mirrored.
///
/// 1. `attachAxes` writes the axes to the current layer and mirrors its art for the first time.
/// 2. After each change of the document `regenerateChangedLayers` finds the layers whose art is not
///    as the last regeneration left it, and makes their copies anew.
/// 3. `releaseLayer` takes the axes off; the copies stay as ordinary art.
///
/// All functions throw `ai::Error`. They set no undo text and refresh nothing on screen.

#include "symmetry/MirrorEngine.h"

namespace facetta {

/// Makes the current axes those of the current top-level layer, to be kept mirrored automatically
/// or not, and regenerates it. Sets `onLayer` and `autoMirror` of the current axes.
void attachAxes(const MirrorEnvironment& environment, bool autoMirror);

/// Makes the copies on the top-level layer of `layer` (null: of the current layer) anew with the
/// axes stored on it and stamps it. `option` as in `MirrorEngine::run`. Returns whether mirroring
/// may have changed the document: false when the layer has no group art or no axes.
bool regenerateLayer(const MirrorEnvironment& environment, bool option, AILayerHandle layer);

/// Regenerates every top-level layer that mirrors automatically, is visible and editable, and has
/// changed since its last regeneration. What it changes joins the undo step before it, which is the
/// user's own edit. Returns how many layers were regenerated; with none the document is untouched.
int regenerateChangedLayers(const MirrorEnvironment& environment);

enum class ResolveTopLevel { No, Yes };

/// Takes the axes off `layer`, or off its top-level layer, and turns the copies on `layer` into
/// ordinary art. With `environment.removePoints` the anchors that lie on the axes go wherever that
/// leaves the shape of the path as it is. A null `layer` is the current one.
void releaseLayer(const MirrorEnvironment& environment, AILayerHandle layer,
                  ResolveTopLevel resolveTopLevel);

} // namespace facetta
