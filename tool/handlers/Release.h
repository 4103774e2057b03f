#pragma once

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// The button goes up, and the gesture ends: new axes are pending, an edit or another place of
/// axes is kept, a button of the on-canvas dialog does what it says. Throws `ai::Error`.
void mouseUp(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
