#pragma once

/// Editing the axes of a layer apart from it.
///
///   1. `beginLayerEdit` notes what the layer has: axes, guides along them, generated copies.
///   2. `takeAxesOffLayer` makes the axes pending; the copies become ordinary art, the guides go.
///      In a drag the host takes back what the message before it did, so every message does this
///      anew.
///   3. The edit ends when the axes are applied or dropped (`endLayerEdit`), or with everything as
///      it was when it began (`restoreLayer`). Axes that go back on the layer find its copies
///      generated again (`reclaimCopies`): they are made anew and not mirrored like drawn art.
///
/// Functions that reach the document throw `ai::Error`.

#include "tool/ToolSession.h"

namespace facetta {

/// Begins the edit of the current layer's axes, which are `axes`.
void beginLayerEdit(ToolSession& session, const SymmetryAxes& axes);

/// The axes are pending from now on, no longer the layer's.
void takeAxesOffLayer(ToolSession& session);

/// Lays the guides that the layer had along its axes, if any, along `axes`.
void renewGuides(const ToolState& state, const SymmetryAxes& axes);

/// Gives the layer back what it had when the edit began, as an undo step of its own, and ends the
/// edit.
void restoreLayer(ToolSession& session);

/// What is left of the layer's former copies is generated art again: marked and locked.
void reclaimCopies(const ToolState& state);

void endLayerEdit(ToolState& state) noexcept;

} // namespace facetta
