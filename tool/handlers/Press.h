#pragma once

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// The button goes down: a gesture begins, for what is under the cursor now. Nothing need have told
/// where the cursor is before. Throws `ai::Error`.
void mouseDown(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
