#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIMenuSuite.h"

namespace easel {
namespace {

Menus& menus() { return host().menus; }
MenuItem& at(AIMenuItemHandle item) { return menus().items.at(item); }

AIErr addMenuItem(SPPluginRef plugin, const char* key, AIPlatformAddMenuItemDataUS* data,
                  AIMenuItemOption options, AIMenuItemHandle* item) {
    static_cast<void>(host().plugins.at(plugin));
    const AIMenuGroup group = menus().groupNamed(&required(required(data).groupName));
    static_cast<void>(menus().groups.at(group)); // an unknown group is refused
    MenuItem added;
    added.plugin = plugin;
    if (key != nullptr) added.key = key;
    added.text = readString(session().ledger, data->itemText);
    added.group = group;
    added.options = options;
    const AIMenuItemHandle handle = menus().items.add(std::move(added));
    if (item != nullptr) *item = handle;
    return kNoErr;
}

AIErr getKey(AIMenuItemHandle item, const char** key) {
    const auto& name = at(item).key;
    required(key) = name ? name->c_str() : nullptr;
    return kNoErr;
}

AIErr countItems(ai::int32* count) {
    required(count) = menus().items.count();
    return kNoErr;
}

AIErr nthItem(ai::int32 index, AIMenuItemHandle* item) {
    required(item) = menus().items.nth(index);
    return kNoErr;
}

AIErr enableItem(AIMenuItemHandle item) {
    at(item).enabled = true;
    return kNoErr;
}

AIErr disableItem(AIMenuItemHandle item) {
    MenuItem& disabled = at(item);
    if ((disabled.options & kItemAlwaysEnabled) == 0) disabled.enabled = false;
    return kNoErr;
}

AIErr setText(AIMenuItemHandle item, const ai::UnicodeString& text) {
    at(item).text = readString(session().ledger, text);
    return kNoErr;
}

AIErr checkItem(AIMenuItemHandle item, AIBoolean check) {
    at(item).checked = check != 0;
    return kNoErr;
}

AIErr addSubMenu(const char* name, AIMenuGroupOption options, AIMenuItemHandle opener,
                 AIMenuGroup* group) {
    static_cast<void>(at(opener));
    if (menus().groupNamed(&required(name)) != nullptr) throw ai::Error{kBadParameterErr};
    const AIMenuGroup added =
        menus().groups.add({.name = name, .options = options, .opener = opener});
    if (group != nullptr) *group = added;
    return kNoErr;
}

AIErr getGroupName(AIMenuGroup group, const char** name) {
    required(name) = menus().groups.at(group).name.c_str();
    return kNoErr;
}

AIErr countGroups(ai::int32* count) {
    required(count) = menus().groups.count();
    return kNoErr;
}

AIErr nthGroup(ai::int32 index, AIMenuGroup* group) {
    required(group) = menus().groups.nth(index);
    return kNoErr;
}

} // namespace

void installMenuSuite(SuiteServer& server) {
    auto table = server.table<AIMenuSuite>(kAIMenuSuite, kAIMenuSuiteVersion);
    expose<&AIMenuSuite::AddMenuItem, addMenuItem>(table);
    expose<&AIMenuSuite::GetMenuItemKeyboardShortcutDictionaryKey, getKey>(table);
    expose<&AIMenuSuite::CountMenuItems, countItems>(table);
    expose<&AIMenuSuite::GetNthMenuItem, nthItem>(table);
    expose<&AIMenuSuite::EnableItem, enableItem>(table);
    expose<&AIMenuSuite::DisableItem, disableItem>(table);
    expose<&AIMenuSuite::SetItemText, setText>(table);
    expose<&AIMenuSuite::CheckItem, checkItem>(table);
    expose<&AIMenuSuite::AddMenuGroupAsSubMenu, addSubMenu>(table);
    expose<&AIMenuSuite::GetMenuGroupName, getGroupName>(table);
    expose<&AIMenuSuite::CountMenuGroups, countGroups>(table);
    expose<&AIMenuSuite::GetNthMenuGroup, nthGroup>(table);
}

} // namespace easel
