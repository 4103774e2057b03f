#pragma once

/// What the items of the panel do when the user has changed them.

#include "ui/PanelSession.h"

namespace facetta {

/// Does what a completed change of item `id` asks for; nothing for an item that only shows.
/// Throws `ai::Error`.
void actOnItem(PanelSession& session, ADMInt32 id);

/// The slider has moved, also while it is still being dragged.
void actOnSlider(PanelSession& session);

} // namespace facetta
