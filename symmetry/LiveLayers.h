#pragma once

/// Layers that keep their art mirrored.
///
/// 1. `attachAxes` writes the axes to the current layer and mirrors its art for the first time.
/// 2. Whenever the document may have changed, `regenerateChangedLayers` finds the live layers whose
///    art is not as the last regeneration left it, makes their copies anew, and notes with which
///    time stamps they fit.
/// 3. `releaseLayer` takes the axes off; the copies stay as ordinary art.
///
/// When a layer counts as changed:
///
/// - Nothing is regenerated while there is something to redo, which a change of art would lose, or
///   nothing to undo, as in a document just opened. A step that was undone or redone has brought
///   its copies with it, and what is opened was saved with its copies: such a layer is taken as it
///   is found, with the stamps it has now.
/// - Undo and redo may bring time stamps back or give new ones. But they bring back the stamp that
///   is stored with the axes, and nobody else does: it tells which regeneration a layer is at.
/// - While the host's pen draws on a layer, the layer waits until the path is done.
///
/// All functions throw `ai::Error`. They set no undo text and refresh nothing on screen.

#include "symmetry/MirrorEngine.h"

#include <cstdint>

namespace facetta {

/// Makes `axes` those of the current top-level layer, to be kept mirrored automatically or not, and
/// regenerates it. Sets their `onLayer` and `autoMirror`.
void attachAxes(SymmetryAxes& axes, const MirrorEnvironment& environment, bool autoMirror);

/// Makes the copies on the top-level layer of `layer` (null: of the current layer) anew with the
/// axes stored on it, all of them, and stamps it. `option` as in `MirrorEngine::run`. Returns
/// whether mirroring may have changed the document: false when the layer has no group art or no
/// axes.
bool regenerateLayer(const MirrorEnvironment& environment, bool option, AILayerHandle layer);

/// What becomes of a layer on which the pen is in the middle of a path.
enum class Pen : std::uint8_t {
    IsWaitedFor,
    IsDone, ///< The host has told its tools to forget what they were drawing.
};

struct Regeneration {
    int layers = 0;     ///< How many were regenerated; with none the document is untouched.
    bool waits = false; ///< Another layer waits for the pen: ask again soon.
};

/// Regenerates every top-level layer that mirrors automatically, is visible and editable, and has
/// changed since its last regeneration. What it changes joins the undo step before it, the user's
/// own edit. To be called in the context that the host has made for the message: in one of the
/// plug-in's own inside that, the host would not listen. Of a path that is too long to be mirrored
/// the user is told once, until it changes.
Regeneration regenerateChangedLayers(const MirrorEnvironment& environment,
                                     Pen pen = Pen::IsWaitedFor);

/// All that was done since the layers were last examined has been taken back. A host may have given
/// the art new stamps at that, but it is the same art, and its copies fit.
void noteTakenBack(LiveLayerMemory& memory);

enum class ResolveTopLevel { No, Yes };

/// Takes the axes off `layer`, or off its top-level layer, and turns the copies on `layer` into
/// ordinary art. With `environment.removePoints` the anchors that lie on the axes go wherever that
/// leaves the shape of the path as it is. A null `layer` is the current one.
void releaseLayer(const MirrorEnvironment& environment, AILayerHandle layer,
                  ResolveTopLevel resolveTopLevel);

} // namespace facetta
