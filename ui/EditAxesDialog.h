#pragma once

#include "tool/ToolSession.h"

namespace facetta {

/// Shows the dialog in which the user gives the axes in numbers (tool/axes/NumericEdit.h), until it
/// is closed. Its title tells whether the layer's art comes along. Throws what making the dialog
/// throws, and what a change throws: the dialog is gone then.
DialogResult showEditAxesDialog(ToolSession& session);

} // namespace facetta
