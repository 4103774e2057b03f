#pragma once

#include "easel/core/Registry.h"
#include "host/Handles.h"
#include "host/Types.h"

#include <optional>
#include <string>

namespace easel {

class Sender;

struct MenuGroup {
    std::string name;
    AIMenuGroupOption options = 0;
    AIMenuItemHandle opener = nullptr; ///< The item whose submenu it is, or null.
};

struct MenuItem {
    SPPluginRef plugin;
    std::optional<std::string> key; ///< Its unique name.
    std::u32string text;
    AIMenuGroup group;
    AIMenuItemOption options = 0;
    bool enabled = true;
    bool checked = false;
};

/// Options of items and groups that the host itself acts on.
inline constexpr AIMenuItemOption kItemWantsUpdate = 1;
inline constexpr AIMenuItemOption kItemAlwaysEnabled = 2;
inline constexpr AIMenuItemOption kItemIsSeparator = 4;

/// The menu bar: the host's groups, and what plug-ins put there.
struct Menus {
    /// Starts with the host's own groups and no items.
    Menus();

    [[nodiscard]] AIMenuGroup groupNamed(const std::string& name) const;
    /// The item with the unique name `key`; null when there is none.
    [[nodiscard]] AIMenuItemHandle itemNamed(const std::string& key) const;
    /// The user opens the menu bar: items that want to are asked to bring themselves up to date.
    void open(Sender& sender) const;
    /// Nothing happens to a disabled item.
    void choose(Sender& sender, AIMenuItemHandle item) const;
    /// A line for each item: group, key, text, state. For tests.
    [[nodiscard]] std::string dump() const;

    Registry<AIMenuGroup, MenuGroup> groups;
    Registry<AIMenuItemHandle, MenuItem> items;
};

} // namespace easel
