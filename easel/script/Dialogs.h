#pragma once

#include "platform/DialogDoor.h"

#include <functional>

/// The dialogs and panels of plug-ins on the screen. Where there is none they come through the
/// door; on Windows they are windows, and what a script does to them are messages as mouse and
/// keyboard make them.

namespace easel {

class Host;

using facetta::door::Dialog;
using facetta::door::SeenItem;

/// The modal dialog in front; null when none is open.
[[nodiscard]] Dialog* modalDialog();

/// What the plug-in shows in its panel, hidden or not; null when it has none.
[[nodiscard]] Dialog* panelDialog(const Host& host);

/// Calls `next`, which does what the user does next, until it answers false. While a modal dialog
/// waits for its user it is the dialog's loop that calls: the call that opened it is still on the
/// stack. A dialog that is open at the end is closed.
void serveUser(const std::function<bool()>& next);

} // namespace easel
