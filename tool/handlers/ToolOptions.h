#pragma once

#include "tool/ToolSession.h"

namespace facetta {

/// A double click on the tool's icon applies pending axes, to the layer or to the selection as the
/// user has set it. With Ctrl or Shift held, or with nothing pending, it asks for the tool's
/// settings. Throws `ai::Error`.
void editOptions(ToolSession& session);

/// The host's keys for a tool's diameter: one axis more (`step` 1) or fewer (-1), within 1 to 72;
/// axes on a layer keep theirs. Throws `ai::Error`.
void changeAxisCount(ToolSession& session, int step);

} // namespace facetta
