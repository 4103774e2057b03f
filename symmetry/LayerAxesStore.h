#pragma once

/// The axes that a layer carries inside the document.
///
/// They live in the dictionary of the group art of a TOP-LEVEL layer, under "FacettaFT"; all its
/// sublayers share them. Where a function takes a layer, a null one means the current layer. A
/// missing layer, group art or entry is no error: there is nothing to read, and nothing is done.
/// A host call that fails for another reason throws `ai::Error`.

#include "host/Handles.h"
#include "host/Types.h"
#include "symmetry/SymmetryAxes.h"

#include <optional>
#include <vector>

namespace facetta {

/// Null when there is none, as without a document.
[[nodiscard]] AILayerHandle currentLayer();

/// The layer without a parent above `layer`; null when there is no layer.
[[nodiscard]] AILayerHandle topLevelLayer(AILayerHandle layer);

/// All layers without a parent, those in front first. There must be a document.
[[nodiscard]] std::vector<AILayerHandle> topLevelLayers();

/// The group that holds the art of exactly this layer; null when there is none.
[[nodiscard]] AIArtHandle groupArtOf(AILayerHandle layer);

namespace LayerAxesStore {

/// Sets `out.axisCount` to 0; then, when the top-level layer of `layer` has axes, fills `out` from
/// them and sets `out.onLayer`. What is missing or unreadable reads as its default: origin and
/// angle 0, one axis, automatic mirroring on; the count is clamped to 1..72. Returns whether axes
/// were found.
bool read(AILayerHandle layer, SymmetryAxes& out);

/// What keeps a layer mirrored: its axes, and the stamp noted last; 0: none was.
struct LiveAxes {
    SymmetryAxes axes;
    ai::int32 stamp = 0;
};

/// Both of a layer that mirrors automatically, from one look at its entry; nothing for any other.
[[nodiscard]] std::optional<LiveAxes> readLive(AILayerHandle layer);

/// Stores `axes` on the top-level layer of the current layer. The entry is replaced as a whole, and
/// with it goes the stamp.
void write(const SymmetryAxes& axes);

/// Whether `layer` itself has axes; its top-level layer is not looked up.
[[nodiscard]] bool hasAxes(AILayerHandle layer);

/// Deletes the axes of `layer`, or of its top-level layer when `resolveTopLevel`, and turns the
/// copies on `layer` into ordinary art: their tags go and they are unlocked.
void remove(AILayerHandle layer, bool resolveTopLevel);

/// Notes beside the axes of the top-level layer of `layer`, if it has any, with which time stamp
/// its copies are as they should be: the present one, or one that was read before.
void stamp(AILayerHandle layer);
void stamp(AILayerHandle layer, ai::int32 stamp);

/// The stamp noted last; 0 when there is none.
[[nodiscard]] ai::int32 stampOf(AILayerHandle layer);

} // namespace LayerAxesStore
} // namespace facetta
