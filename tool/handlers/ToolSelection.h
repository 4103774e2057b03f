#pragma once

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// The user takes the tool in hand. Throws `ai::Error`.
void selectTool(ToolSession& session, const AIToolMessage& message);

/// The user puts it away, or the host does in the middle of a drag: pending axes are dropped, those
/// of the layer stay in sight. Throws `ai::Error`.
void deselectTool(ToolSession& session);

} // namespace facetta
