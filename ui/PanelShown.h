#pragma once

/// Brings what the panel shows up to date with what the plug-in holds. None of this is notified.

#include "ui/PanelSession.h"

namespace facetta {

/// Everything but whether "Update" can be pressed. What asks the host for nothing comes first, and
/// is right even if the rest throws `ai::Error`.
void showState(PanelSession& session);

/// "Update" is there for layers that are not mirrored automatically. Where the mode is chosen that
/// setting is all that counts,
void offerUpdateByMode(PanelSession& session);
/// where the setting is changed the layer must carry axes as well.
void offerUpdateByLayer(PanelSession& session);

} // namespace facetta
