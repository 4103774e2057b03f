#pragma once

/// The steps by which the axes shown to the user come and go.

#include "tool/ToolSession.h"

namespace facetta {

/// No axes: neither pending nor a layer's. The next new ones get the default angle and count.
void dropAxes(ToolState& state);

/// Puts the origin of the axes to `point` on the page, kept within the canvas.
void moveOriginTo(ToolState& state, AIRealPoint point);

/// The axes that nobody has pressed yet: they follow the cursor with the default angle and count.
void previewAt(ToolSession& session, AIRealPoint point);

/// Shows the axes of the current layer, or takes them off the screen when it has none. Axes that
/// are pending stay.
void followCurrentLayer(ToolState& state);

/// The tool's own copy of angle and count becomes the default for new axes.
void rememberAsDefault(ToolSession& session);

/// Mirrors the selected art across the axes, once; the axes are then done with. Nothing happens
/// while nothing is selected or the licence forbids it.
void applyToSelection(ToolSession& session);

/// Attaches the axes to the current layer, which stays mirrored from now on.
void applyToLayer(ToolSession& session);

/// Is no art selected, or no document open?
[[nodiscard]] bool selectionIsEmpty();

} // namespace facetta
