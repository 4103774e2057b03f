#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIMenuSuite.h"

namespace easel {
namespace {

Menus& menus() { return host().menus; }
MenuItem& at(AIMenuItemHandle item) { return menus().items.at(item); }

AIMenuItemHandle addMenuItem(SPPluginRef plugin, const char* key, AIPlatformAddMenuItemDataUS* data,
                             AIMenuItemOption options) {
    static_cast<void>(host().plugins.at(plugin));
    const AIMenuGroup group = menus().groupNamed(&required(required(data).groupName));
    static_cast<void>(menus().groups.at(group)); // an unknown group is refused
    return menus().items.add(
        {.plugin = plugin,
         .key = key != nullptr ? std::optional<std::string>{key} : std::nullopt,
         .text = readString(session().ledger, data->itemText),
         .group = group,
         .options = options});
}

const char* getKey(AIMenuItemHandle item) {
    const auto& name = at(item).key;
    return name ? name->c_str() : nullptr;
}

ai::int32 countItems() { return menus().items.count(); }

AIMenuItemHandle nthItem(ai::int32 index) { return menus().items.nth(index); }

void enableItem(AIMenuItemHandle item) { at(item).enabled = true; }

void disableItem(AIMenuItemHandle item) {
    MenuItem& disabled = at(item);
    if ((disabled.options & kItemAlwaysEnabled) == 0) disabled.enabled = false;
}

void setText(AIMenuItemHandle item, const ai::UnicodeString& text) {
    at(item).text = readString(session().ledger, text);
}

void checkItem(AIMenuItemHandle item, AIBoolean check) { at(item).checked = check != 0; }

AIMenuGroup addSubMenu(const char* name, AIMenuGroupOption options, AIMenuItemHandle opener) {
    static_cast<void>(at(opener));
    if (menus().groupNamed(&required(name)) != nullptr) throw ai::Error{kBadParameterErr};
    return menus().groups.add({.name = name, .options = options, .opener = opener});
}

const char* getGroupName(AIMenuGroup group) { return menus().groups.at(group).name.c_str(); }

ai::int32 countGroups() { return menus().groups.count(); }

AIMenuGroup nthGroup(ai::int32 index) { return menus().groups.nth(index); }

} // namespace

void installMenuSuite(SuiteServer& server) {
    expose<&AIMenuSuite::AddMenuItem, addMenuItem, OutputMayBeNull>(server);
    expose<&AIMenuSuite::GetMenuItemKeyboardShortcutDictionaryKey, getKey>(server);
    expose<&AIMenuSuite::CountMenuItems, countItems>(server);
    expose<&AIMenuSuite::GetNthMenuItem, nthItem>(server);
    expose<&AIMenuSuite::EnableItem, enableItem>(server);
    expose<&AIMenuSuite::DisableItem, disableItem>(server);
    expose<&AIMenuSuite::SetItemText, setText>(server);
    expose<&AIMenuSuite::CheckItem, checkItem>(server);
    expose<&AIMenuSuite::AddMenuGroupAsSubMenu, addSubMenu, OutputMayBeNull>(server);
    expose<&AIMenuSuite::GetMenuGroupName, getGroupName>(server);
    expose<&AIMenuSuite::CountMenuGroups, countGroups>(server);
    expose<&AIMenuSuite::GetNthMenuGroup, nthGroup>(server);
}

} // namespace easel
