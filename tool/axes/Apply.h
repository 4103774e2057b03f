#pragma once

/// What pending axes are made for. All functions throw `ai::Error`, and leave the axes pending
/// then.

#include "tool/ToolSession.h"

namespace facetta {

/// Mirrors the selected art across the axes, once; the axes are then done with. Nothing happens
/// while nothing is selected or the licence forbids it.
void applyToSelection(ToolSession& session);

/// Attaches the axes to the current layer, which stays mirrored from now on. Nothing happens while
/// the layer is locked or hidden or the licence forbids it.
void applyToLayer(ToolSession& session);

/// Drops new axes. Those of a layer that are edited go back on it.
void cancelAxes(ToolSession& session);

} // namespace facetta
