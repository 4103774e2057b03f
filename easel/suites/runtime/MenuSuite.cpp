#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/document/Attributes.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIMenuSuite.h"

namespace easel {
namespace {

constexpr AIMenuGroupOption kAddAboveNearGroup = 16;

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
    added.text = readString(data->itemText);
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

AIErr getOptions(AIMenuItemHandle item, AIMenuItemOption* options) {
    required(options) = at(item).options;
    return kNoErr;
}

AIErr setOptions(AIMenuItemHandle item, AIMenuItemOption options) {
    at(item).options = options;
    return kNoErr;
}

AIErr getPlugin(AIMenuItemHandle item, SPPluginRef* plugin) {
    required(plugin) = at(item).plugin;
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

/// The bit of a kind of art in the masks of `GetUpdateFlags`.
ai::int32 artBit(const Art& art) {
    switch (art.type()) {
    case kGroupArt:
        return 1 << 0;
    case kPathArt:
        return 1 << 1 | (art.content().guide ? 1 << 8 : 0);
    case kPlacedArt:
        return 1 << 3;
    case kTextFrameArt:
        return 1 << 4;
    case kCompoundPathArt:
        return 1 << 13;
    case kRasterArt:
        return 1 << 20;
    case kPluginArt:
        return 1 << 21;
    case kMeshArt:
        return 1 << 22;
    case kSymbolArt:
        return 1 << 24;
    default:
        return 1 << 25; // foreign
    }
}

constexpr ai::int32 kCurrentLayerEditable = 1 << 0;
constexpr ai::int32 kHiddenObjects = 1 << 3;
constexpr ai::int32 kLockedObjects = 1 << 4;
constexpr ai::int32 kOpenDocument = 1 << 6;
constexpr ai::int32 kRgbDocument = 1 << 8;

struct UpdateFlags {
    ai::int32 inArtwork = 0;
    ai::int32 isSelected = 0;
    ai::int32 isTrue = 0;
};

UpdateFlags updateFlags() {
    UpdateFlags flags;
    const Document* const document = session().current;
    if (document == nullptr) return flags;
    flags.isTrue = kOpenDocument | kRgbDocument;
    const Art* const layer = document->state().currentLayer;
    if (layer != nullptr && isEditable(*layer)) flags.isTrue |= kCurrentLayerEditable;
    const Art& root = document->root();
    for (const Art* art = nextInPreorder(root, root); art != nullptr;
         art = nextInPreorder(*art, root)) {
        if (art->isLayer()) continue;
        flags.inArtwork |= artBit(*art);
        if (selectionOf(*art) != Selected::No) flags.isSelected |= artBit(*art);
        if (art->has(kArtHidden)) flags.isTrue |= kHiddenObjects;
        if (art->has(kArtLocked)) flags.isTrue |= kLockedObjects;
    }
    return flags;
}

AIErr getUpdateFlags(ai::int32* inArtwork, ai::int32* isSelected, ai::int32* isTrue) {
    if (!host().updatingMenus()) throw ai::Error{kSelectorClashErr};
    const UpdateFlags flags = updateFlags();
    required(inArtwork) = flags.inArtwork;
    required(isSelected) = flags.isSelected;
    required(isTrue) = flags.isTrue;
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

AIErr getText(AIMenuItemHandle item, ai::UnicodeString& text) {
    writeString(text, at(item).text);
    return kNoErr;
}

AIErr setText(AIMenuItemHandle item, const ai::UnicodeString& text) {
    at(item).text = readString(text);
    return kNoErr;
}

AIErr checkItem(AIMenuItemHandle item, AIBoolean check) {
    at(item).checked = check != 0;
    return kNoErr;
}

AIErr getGroup(AIMenuItemHandle item, AIMenuGroup* group) {
    required(group) = at(item).group;
    return kNoErr;
}

AIErr addGroup(const char* name, AIMenuGroupOption options, const char* nearGroup,
               AIMenuGroup* group) {
    AIMenuGroup found = menus().groupNamed(&required(name));
    if (found == nullptr) {
        static_cast<void>(menus().groups.at(menus().groupNamed(&required(nearGroup))));
        found = menus().groups.add(
            {.name = name, .options = options & ~kAddAboveNearGroup, .near = nearGroup});
    }
    if (group != nullptr) *group = found;
    return kNoErr;
}

AIErr addSubMenu(const char* name, AIMenuGroupOption options, AIMenuItemHandle opener,
                 AIMenuGroup* group) {
    static_cast<void>(at(opener));
    if (menus().groupNamed(&required(name)) != nullptr) throw ai::Error{kBadParameterErr};
    const AIMenuGroup added =
        menus().groups.add({.name = name, .options = options, .near = {}, .opener = opener});
    if (group != nullptr) *group = added;
    return kNoErr;
}

AIErr getGroupName(AIMenuGroup group, const char** name) {
    required(name) = menus().groups.at(group).name.c_str();
    return kNoErr;
}

AIErr getGroupOptions(AIMenuGroup group, AIMenuGroupOption* options) {
    required(options) = menus().groups.at(group).options;
    return kNoErr;
}

AIErr setGroupOptions(AIMenuGroup group, AIMenuGroupOption options) {
    menus().groups.at(group).options = options;
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

AIErr getCommand(AIMenuItemHandle item, ai::int16* command, ai::int16* modifiers) {
    required(command) = static_cast<unsigned char>(at(item).command);
    required(modifiers) = at(item).commandModifiers;
    return kNoErr;
}

AIErr setCommand(AIMenuItemHandle item, char command, ai::int16 modifiers) {
    at(item).command = command;
    at(item).commandModifiers = modifiers;
    return kNoErr;
}

AIErr getFunctionKey(AIMenuItemHandle item, ai::int16* key, ai::int16* modifiers) {
    required(key) = at(item).functionKey;
    required(modifiers) = at(item).functionKeyModifiers;
    return kNoErr;
}

AIErr setFunctionKey(AIMenuItemHandle item, ai::int16 key, ai::int16 modifiers) {
    at(item).functionKey = key;
    at(item).functionKeyModifiers = modifiers;
    return kNoErr;
}

AIErr isEnabled(AIMenuItemHandle item, AIBoolean* enabled) {
    required(enabled) = at(item).enabled ? 1 : 0;
    return kNoErr;
}

AIErr isChecked(AIMenuItemHandle item, AIBoolean* checked) {
    required(checked) = at(item).checked ? 1 : 0;
    return kNoErr;
}

AIErr removeItem(AIMenuItemHandle item) {
    menus().items.remove(item);
    return kNoErr;
}

AIErr setHeader(AIMenuGroup group, const ai::UnicodeString& header) {
    menus().groups.at(group).header = readString(header);
    return kNoErr;
}

} // namespace

void installMenuSuite(SuiteServer& server) {
    auto table = server.table<AIMenuSuite>(kAIMenuSuite, kAIMenuSuiteVersion);
    expose<&AIMenuSuite::AddMenuItem, addMenuItem>(table);
    expose<&AIMenuSuite::GetMenuItemKeyboardShortcutDictionaryKey, getKey>(table);
    expose<&AIMenuSuite::GetMenuItemOptions, getOptions>(table);
    expose<&AIMenuSuite::SetMenuItemOptions, setOptions>(table);
    expose<&AIMenuSuite::GetMenuItemPlugin, getPlugin>(table);
    expose<&AIMenuSuite::CountMenuItems, countItems>(table);
    expose<&AIMenuSuite::GetNthMenuItem, nthItem>(table);
    expose<&AIMenuSuite::GetUpdateFlags, getUpdateFlags>(table);
    expose<&AIMenuSuite::EnableItem, enableItem>(table);
    expose<&AIMenuSuite::DisableItem, disableItem>(table);
    expose<&AIMenuSuite::GetItemText, getText>(table);
    expose<&AIMenuSuite::SetItemText, setText>(table);
    expose<&AIMenuSuite::CheckItem, checkItem>(table);
    expose<&AIMenuSuite::GetItemMenuGroup, getGroup>(table);
    expose<&AIMenuSuite::AddMenuGroup, addGroup>(table);
    expose<&AIMenuSuite::AddMenuGroupAsSubMenu, addSubMenu>(table);
    expose<&AIMenuSuite::GetMenuGroupName, getGroupName>(table);
    expose<&AIMenuSuite::GetMenuGroupOptions, getGroupOptions>(table);
    expose<&AIMenuSuite::SetMenuGroupOptions, setGroupOptions>(table);
    expose<&AIMenuSuite::CountMenuGroups, countGroups>(table);
    expose<&AIMenuSuite::GetNthMenuGroup, nthGroup>(table);
    expose<&AIMenuSuite::GetItemCmd, getCommand>(table);
    expose<&AIMenuSuite::SetItemCmd, setCommand>(table);
    expose<&AIMenuSuite::GetItemFunctionKey, getFunctionKey>(table);
    expose<&AIMenuSuite::SetItemFunctionKey, setFunctionKey>(table);
    expose<&AIMenuSuite::IsItemEnabled, isEnabled>(table);
    expose<&AIMenuSuite::IsItemChecked, isChecked>(table);
    expose<&AIMenuSuite::RemoveMenuItem, removeItem>(table);
    expose<&AIMenuSuite::SetMenuGroupHeader, setHeader>(table);
}

} // namespace easel
