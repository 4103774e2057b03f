#pragma once

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// The cursor moves, its button up: new axes follow it; of the axes there are, what lies under it
/// lights up. Throws `ai::Error`.
void trackCursor(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
