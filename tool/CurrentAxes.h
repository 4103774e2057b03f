#pragma once

/// The steps by which the axes shown to the user come and go.

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// No axes: neither pending nor a layer's, nor anything begun with them. The next new ones get the
/// default angle and count.
void dropAxes(ToolState& state);

/// Puts the origin of the axes to `point` on the page, kept within the canvas.
void moveOriginTo(ToolState& state, AIRealPoint point);

/// The axes that nobody has pressed yet: they follow the cursor with the default angle and count.
void previewAt(ToolSession& session, AIRealPoint point);

/// Shows the axes of the current layer, or takes them off the screen when it has none. Pending axes
/// stay; but when they are a layer's and the user has undone their edit, the layer's are shown
/// again, and when another layer has become current they go on as new ones.
void followCurrentLayer(ToolState& state);

/// The axes are others: shows them and what they would mirror.
void axesChanged(ToolSession& session);

/// The tool's own copy of angle and count becomes the default for new axes.
void rememberAsDefault(ToolSession& session);

/// Mirrors the selected art across the axes, once; the axes are then done with, and new ones follow
/// the cursor. Nothing happens while nothing is selected or the licence forbids it.
void applyToSelection(ToolSession& session);

/// Attaches the axes to the current layer, which stays mirrored from now on.
void applyToLayer(ToolSession& session);

/// Where the host's own aids put the cursor of `message` while new axes follow it.
[[nodiscard]] AIRealPoint snapToAnything(ToolSession& session, const AIToolMessage& message);

/// Is no art selected, or no document open?
[[nodiscard]] bool selectionIsEmpty();

} // namespace facetta
