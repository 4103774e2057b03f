#pragma once

#include "host/Handles.h"

#include <array>
#include <cstddef>

namespace facetta {

class FacettaPlugin;

constexpr std::size_t kHelpItemCount = 6;

/// The items that this plug-in added, or shares with the vendor's other plug-ins; null until then.
struct MenuItems {
    AIMenuItemHandle about = nullptr;
    std::array<AIMenuItemHandle, kHelpItemCount> help{};
    AIMenuItemHandle showAllPanels = nullptr;
    AIMenuItemHandle panel = nullptr;
};

// Each answers whether its item or group is there afterwards. Texts that the host cannot take throw
// `ai::Error`.

bool addAboutItem(SPPluginRef self, MenuItems& items);

/// The vendor's submenu of the help menu, made by the first of its plug-ins, and ours inside it.
bool addHelpItems(SPPluginRef self, MenuItems& items);

/// Found or added: one item serves all of the vendor's plug-ins.
bool addShowAllPanelsItem(SPPluginRef self, MenuItems& items);

/// Our submenu of the panel list.
bool addWindowGroup(SPPluginRef self);
bool addPanelItem(SPPluginRef self, MenuItems& items);

/// Does what choosing `item` asks for; nothing when it is none of ours, or the panel's. Throws
/// `ai::Error`.
void chooseMenuItem(FacettaPlugin& plugin, AIMenuItemHandle item);

} // namespace facetta
