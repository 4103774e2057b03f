#pragma once

/// The panel at its full height, or compact: the rows up to Apply and Cancel alone.

#include "ui/PanelSession.h"

namespace facetta {

[[nodiscard]] constexpr bool isCompact(const Preferences& preferences) {
    return preferences.panelExpansion == 1;
}

/// Gives the panel the height it is kept at, the host's panel the state for it, and the licence's
/// status line its place.
void applyPanelSize(const Adm& adm, ADMDialogRef dialog, const Preferences& preferences);

/// Compact becomes full; anything else becomes compact.
void togglePanelSize(PanelSession& session);

/// The user has compacted or expanded the panel by the arrow in its tab, which is the host's.
void followHostPanelState(PanelSession& session);

} // namespace facetta
