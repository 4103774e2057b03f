#pragma once

#include "host/Handles.h"
#include "host/Messages.h"

#include <array>
#include <cstddef>

namespace facetta {

class FacettaPlugin;

/// Sent by whichever of the vendor's plug-ins owns the menu item, to all of them.
inline constexpr char kShowAllPanelsNotifier[] = "Norvane Show All Panels Notifier";

constexpr std::size_t kNotifierCount = 27;
using NotifierHandles = std::array<AINotifierHandle, kNotifierCount>;

/// Registers for all notifications in order; after a failure the remaining ones are left out.
void registerNotifiers(SPPluginRef self, NotifierHandles& handles);

/// Reacts to the notification when its handle is one of the plug-in's. Then, whoever it was for,
/// the licence hears it and what is shown follows the current document. Throws `ai::Error`.
void handleNotification(FacettaPlugin& plugin, const AINotifierMessage& message);

} // namespace facetta
