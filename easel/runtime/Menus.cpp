#include "easel/runtime/Menus.h"

#include "easel/core/Text.h"
#include "easel/runtime/Sender.h"
#include "host/MessageNames.h"

namespace easel {
namespace {

constexpr const char* kHostGroups[] = {
    "About",
    "Help Menu",
    "Tool Palettes",
    "Window Utilities",
    "Application Container",
    "Window Libraries",
    "Open Document",
    "Recent Files",
    "Close Document",
    "Save Document",
    "Import",
    "Place Document",
    "Export Document",
    "Document Utilities",
    "Print",
    "Application Utilities",
    "Quit",
    "Edit",
    "Undo",
    "Paste Utilities",
    "Edit Utilities",
    "Preferences",
    "Clipboard",
    "Repeat",
    "Arrange Transform",
    "Arrange Move",
    "Arrange Group",
    "Arrange Attributes",
    "View Mode",
    "View Adornments",
    "View",
    "View Utilities",
    "View Extension",
    "View Snap",
    "Object Attributes",
    "Object Utilities",
    "Objects",
    "Objects Paths",
    "Objects Paths Popup",
    "Lock",
    "Hide",
    "Guides",
    "Masks",
    "Compound Paths",
    "Select",
    "SelectExternal",
    "Same",
    "SelectObject",
    "Type Attributes",
    "Effects",
};

} // namespace

Menus::Menus() {
    for (const char* name : kHostGroups)
        groups.add({.name = name});
}

AIMenuGroup Menus::groupNamed(const std::string& name) const {
    return groups.findIf([&](const MenuGroup& group) { return group.name == name; });
}

AIMenuItemHandle Menus::itemNamed(const std::string& key) const {
    return items.findIf([&](const MenuItem& item) { return item.key == key; });
}

void Menus::open(Sender& sender) const {
    for (const AIMenuItemHandle handle : items.handles()) {
        const MenuItem* const item = items.find(handle); // one may remove another
        if (item == nullptr || (item->options & kItemWantsUpdate) == 0) continue;
        AIMenuMessage message{};
        message.menuItem = handle;
        sender.send(item->plugin, kCallerMenu, kSelectorUpdate, message, item->key.value_or(""));
    }
}

void Menus::choose(Sender& sender, AIMenuItemHandle handle) const {
    const MenuItem& item = items.at(handle);
    if (!item.enabled) return;
    AIMenuMessage message{};
    message.menuItem = handle;
    sender.send(item.plugin, kCallerMenu, kSelectorGo, message, item.key.value_or(""));
}

std::string Menus::dump() const {
    std::string lines;
    for (const auto& [handle, item] : items) {
        lines += groups.at(item->group).name + " | " + item->key.value_or("-") + " | ";
        lines += (item->options & kItemIsSeparator) != 0 ? "----" : utf8FromUtf32(item->text);
        if (item->checked) lines += " [x]";
        if (!item->enabled) lines += " (off)";
        lines += '\n';
    }
    return lines;
}

} // namespace easel
