#pragma once

#include "toolkit/suites/ADMTypes.h"

/// What the toolkit offers of the host's panels beyond ADM, which has no word for their states.
/// Both throw `ai::Error` when the host fails, and `NRDMParameterException` for no dialog.
namespace NRDM {

/// The state of the panel that `dialog` lies in, which the user steps through with the panel's
/// arrow; counted from 1, and 0 for a dialog that lies in none. A change of it by the host is told
/// as "ADM Cycle Notifier".
[[nodiscard]] int panelState(ADMDialogRef dialog);
void setPanelState(ADMDialogRef dialog, int state);

} // namespace NRDM
