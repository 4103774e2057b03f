#include "ui/PanelSize.h"

#include "toolkit/suites/NRDMPanelState.h"

namespace facetta {
namespace {

// The states of the host's panel.
constexpr int kHostCompact = 1;
constexpr int kHostFull = 2;

} // namespace

void applyPanelSize(const Adm& adm, ADMDialogRef dialog, const Preferences& preferences) {
    ADMRect bounds{};
    adm.dialog->GetBoundsRect(dialog, &bounds);
    bounds.right = bounds.left + kPanelWidth;
    bounds.bottom = bounds.top + kPanelHeights[isCompact(preferences) ? 1 : 0];
    adm.dialog->SetBoundsRect(dialog, &bounds);
    // Settings of other versions may hold a number above 1: full here, compact to the host, whose
    // arrow then expands first.
    NRDM::setPanelState(dialog, preferences.panelExpansion > 0 ? kHostCompact : kHostFull);
    placeStatusLine(adm, dialog, isCompact(preferences));
}

void togglePanelSize(PanelSession& session) {
    Preferences& preferences = session.tool.preferences;
    preferences.panelExpansion = isCompact(preferences) ? 0 : 1;
    applyPanelSize(session.adm, session.dialog, preferences);
}

void followHostPanelState(PanelSession& session) {
    session.tool.preferences.panelExpansion =
        NRDM::panelState(session.dialog) == kHostCompact ? 1 : 0;
    applyPanelSize(session.adm, session.dialog, session.tool.preferences);
    session.adm.dialog->Invalidate(session.dialog);
}

} // namespace facetta
