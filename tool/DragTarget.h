#pragma once

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// Where the axes are dragged to: the cursor after the host's snapping and, with Shift held, the
/// constraint to steps of 45 degrees. Sets `target` and `constrainedAngle` of the state. Throws
/// `ai::Error`.
void findDragTarget(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
