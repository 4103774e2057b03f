#pragma once

#include "tool/ToolSession.h"

namespace facetta {

/// Lets the user edit four settings of the tool; OK stores them and has the overlay drawn anew.
/// Throws what making the dialog throws, and what drawing throws: the settings are as before then.
DialogResult showPreferencesDialog(ToolSession& session);

} // namespace facetta
