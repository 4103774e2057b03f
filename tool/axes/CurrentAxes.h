#pragma once

/// The axes shown to the user: where they are, and what they would mirror.

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// Puts the origin of the axes to `point` on the page, kept within the canvas. Throws `ai::Error`.
void moveOriginTo(ToolState& state, Point point);

/// The axes that nobody has pressed yet: they follow the cursor with the default angle and count.
/// Throws `ai::Error`.
void previewAt(ToolSession& session, AIRealPoint point);

/// Draws the axes where they are now, and what they would mirror. Throws `ai::Error`.
void axesChanged(ToolSession& session);

/// New axes get the angle and count of those shown.
void rememberAsDefault(ToolSession& session);

/// Where the host's own aids put the cursor of `message` while new axes follow it. Throws
/// `ai::Error`.
[[nodiscard]] AIRealPoint snapToAnything(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
