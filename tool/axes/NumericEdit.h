#pragma once

#include "tool/ToolSession.h"

namespace facetta {

/// Lets the user give the axes in numbers, in the modal dialog. Axes of a layer are edited apart
/// from it, or, with Alt held, take the art of the layer along. The dialog changes the current axes
/// as the user goes; cancelled, everything is as it was. Throws `ai::Error`.
void editAxesByNumbers(ToolSession& session);

} // namespace facetta
