#include "toolkit/suites/NRDMPanelState.h"

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Slots.h"

namespace NRDM {

int panelState(ADMDialogRef dialog) { return objectOf(dialog).panelState(); }

void setPanelState(ADMDialogRef dialog, int state) { objectOf(dialog).setPanelState(state); }

} // namespace NRDM
