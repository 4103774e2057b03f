#pragma once

/// The panel's flyout menu: which of its entries can be chosen, and what each does.

#include "ui/PanelSession.h"

namespace facetta {

/// Brings the entries up to date before the menu opens.
void updatePanelMenu(PanelSession& session, ADMListRef entries);

/// Does what the entry at `position` asks for, separators counted; nothing for a separator, or
/// where there is no entry.
void choosePanelMenuEntry(PanelSession& session, int position);

} // namespace facetta
