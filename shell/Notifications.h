#pragma once

#include "host/Handles.h"

#include <array>
#include <cstddef>

namespace facetta {

class FacettaPlugin;

/// Sent by the licensing module when the state of the licence has changed.
inline constexpr char kLicenceChangedNotifier[] = "Facetta Licence Changed Notifier";

/// Sent by whichever of the vendor's plug-ins owns the menu item, to all of them.
inline constexpr char kShowAllPanelsNotifier[] = "Norvane Show All Panels Notifier";

constexpr std::size_t kNotifierCount = 27;
using NotifierHandles = std::array<AINotifierHandle, kNotifierCount>;

/// Registers for all notifications in order; after a failure the remaining ones are left out.
void registerNotifiers(SPPluginRef self, NotifierHandles& handles);

/// Reacts to the notification of `notifier` when that is one of the plug-in's handles. Then,
/// whoever it was for, what is shown follows the current document. Throws `ai::Error`.
void handleNotification(FacettaPlugin& plugin, AINotifierHandle notifier);

} // namespace facetta
