#pragma once

/// What axes are made for: to be applied. All functions throw `ai::Error`, and leave the axes as
/// they were then.

#include "tool/ToolSession.h"
#include "tool/axes/LayerEdit.h"

namespace facetta {

/// Is there something to apply the way the user has chosen? A layer's own axes may be applied to it
/// again; to mirror a selection across them as well would double what the layer does by itself.
[[nodiscard]] bool canApply(const ToolSession& session);

/// Applies the axes to the selection or to the layer, as the user has chosen, and brings the screen
/// up to date.
void applyAxes(ToolSession& session);

/// Mirrors the selected art across the axes, once; the axes are then done with. Nothing happens
/// while nothing is selected or the licence forbids it.
void applyToSelection(ToolSession& session);

/// Attaches the axes to the current layer, which stays mirrored from now on. Nothing happens while
/// the layer is locked or hidden or the licence forbids it.
void applyToLayer(ToolSession& session);

/// The same with `copied`, which come with their own choice of mirroring automatically. Whatever
/// axes were pending are gone.
void pasteToLayer(ToolSession& session, const SymmetryAxes& copied);

/// Drops new axes. Those of a layer that are edited go back on it.
void cancelAxes(ToolSession& session, LayerCopies copies);

/// To be called when axes have gone: the current layer's are shown, or new ones follow the cursor.
void showWhatIsLeft(ToolSession& session);

} // namespace facetta
