#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIMenuSuite[] = "AI Menu Suite";
inline constexpr ai::int32 kAIMenuSuiteVersion = 10;

struct AIMenuSuite {
    /// Fails when the group that `data` names does not exist.
    AIErr (*AddMenuItem)(SPPluginRef self, const char* key, AIPlatformAddMenuItemDataUS* data,
                         AIMenuItemOption options, AIMenuItemHandle* item);
    ReservedSlot AddMenuItemZString;
    /// The key it was added with; the text is the host's, or null.
    AIErr (*GetMenuItemKeyboardShortcutDictionaryKey)(AIMenuItemHandle item, const char** key);
    AIErr (*GetMenuItemOptions)(AIMenuItemHandle, AIMenuItemOption*);
    AIErr (*SetMenuItemOptions)(AIMenuItemHandle, AIMenuItemOption);
    AIErr (*GetMenuItemPlugin)(AIMenuItemHandle, SPPluginRef*);
    AIErr (*CountMenuItems)(ai::int32* count);
    AIErr (*GetNthMenuItem)(ai::int32 index, AIMenuItemHandle* item);
    ReservedSlot GetPlatformMenuItem, UpdateMenuItemAutomatically;
    AIErr (*GetUpdateFlags)(ai::int32*, ai::int32*, ai::int32*);
    AIErr (*EnableItem)(AIMenuItemHandle);
    AIErr (*DisableItem)(AIMenuItemHandle);
    AIErr (*GetItemText)(AIMenuItemHandle, ai::UnicodeString&);
    AIErr (*SetItemText)(AIMenuItemHandle, const ai::UnicodeString&);
    ReservedSlot SetItemTextZString;
    AIErr (*CheckItem)(AIMenuItemHandle item, AIBoolean checked);
    AIErr (*GetItemMenuGroup)(AIMenuItemHandle, AIMenuGroup*);
    AIErr (*AddMenuGroup)(const char*, AIMenuGroupOption, const char*, AIMenuGroup*);
    /// Hangs a new group on `item`. Not to be made twice.
    AIErr (*AddMenuGroupAsSubMenu)(const char* name, AIMenuGroupOption options,
                                   AIMenuItemHandle item, AIMenuGroup* group);
    /// The text is the host's.
    AIErr (*GetMenuGroupName)(AIMenuGroup group, const char** name);
    AIErr (*GetMenuGroupOptions)(AIMenuGroup, AIMenuGroupOption*);
    AIErr (*SetMenuGroupOptions)(AIMenuGroup, AIMenuGroupOption);
    ReservedSlot GetMenuGroupRange;
    AIErr (*CountMenuGroups)(ai::int32* count);
    AIErr (*GetNthMenuGroup)(ai::int32 index, AIMenuGroup* group);
    AIErr (*GetItemCmd)(AIMenuItemHandle, ai::int16*, ai::int16*);
    AIErr (*SetItemCmd)(AIMenuItemHandle, char, ai::int16);
    AIErr (*GetItemFunctionKey)(AIMenuItemHandle, ai::int16*, ai::int16*);
    AIErr (*SetItemFunctionKey)(AIMenuItemHandle, ai::int16, ai::int16);
    AIErr (*IsItemEnabled)(AIMenuItemHandle, AIBoolean*);
    AIErr (*IsItemChecked)(AIMenuItemHandle, AIBoolean*);
    AIErr (*RemoveMenuItem)(AIMenuItemHandle);
    AIErr (*SetMenuGroupHeader)(AIMenuGroup, const ai::UnicodeString&);
    ReservedSlot InvokeMenuAction;
};

template <>
struct ai::SuiteId<AIMenuSuite> : ai::SuiteIdentity<kAIMenuSuite, kAIMenuSuiteVersion> {};
