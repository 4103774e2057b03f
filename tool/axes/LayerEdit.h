#pragma once

/// Editing the axes of a layer apart from it.
///
///   1. `beginLayerEdit` notes what the layer has: axes, guides along them, generated copies.
///   2. `takeAxesOffLayer` takes it off; the copies become ordinary art. In a drag the host takes
///      back what the message before it did, so every message does this again.
///   3. The edit ends when the axes are applied or dropped, or with everything as it was when it
///      began (`restoreLayer`). Axes that go back on the layer find its copies generated again
///      (`reclaimCopies`): they are made anew and not mirrored like drawn art.
///
/// All functions throw `ai::Error`.

#include "tool/ToolSession.h"

#include <cstdint>

namespace facetta {

/// Begins the edit of the current layer's axes, which are `axes`; those shown are pending now.
void beginLayerEdit(ToolSession& session, const SymmetryAxes& axes);

void takeAxesOffLayer(ToolSession& session);

/// Lays the guides that the layer had along its axes, if any, along those shown.
void renewGuides(const ToolState& state);

/// What becomes of the copies on a layer that gets its axes back.
enum class LayerCopies : std::uint8_t {
    AsTheyWere, ///< art drawn during the edit waits for the next change to be mirrored
    MadeAnew,
};

/// Gives the layer back what it had when the edit began, as an undo step of its own, and ends the
/// edit.
void restoreLayer(ToolSession& session, LayerCopies copies);

/// What is left of the layer's former copies is generated art again: marked and locked.
void reclaimCopies(const LayerEdit& edit);

} // namespace facetta
