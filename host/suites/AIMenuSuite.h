#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/Types.h"

inline constexpr char kAIMenuSuite[] = "AI Menu Suite";
inline constexpr ai::int32 kAIMenuSuiteVersion = 10;

struct AIMenuSuite {
    AIErr (*AddMenuItem)(SPPluginRef, const char*, AIPlatformAddMenuItemDataUS*, AIMenuItemOption,
                         AIMenuItemHandle*);
    ReservedSlot AddMenuItemZString;
    AIErr (*GetMenuItemKeyboardShortcutDictionaryKey)(AIMenuItemHandle, const char**);
    AIErr (*GetMenuItemOptions)(AIMenuItemHandle, AIMenuItemOption*);
    AIErr (*SetMenuItemOptions)(AIMenuItemHandle, AIMenuItemOption);
    AIErr (*GetMenuItemPlugin)(AIMenuItemHandle, SPPluginRef*);
    AIErr (*CountMenuItems)(ai::int32*);
    AIErr (*GetNthMenuItem)(ai::int32, AIMenuItemHandle*);
    ReservedSlot GetPlatformMenuItem;
    AIErr (*UpdateMenuItemAutomatically)(AIMenuItemHandle, ai::int32, ai::int32, ai::int32,
                                         ai::int32, ai::int32, ai::int32, ai::int32);
    AIErr (*GetUpdateFlags)(ai::int32*, ai::int32*, ai::int32*);
    AIErr (*EnableItem)(AIMenuItemHandle);
    AIErr (*DisableItem)(AIMenuItemHandle);
    AIErr (*GetItemText)(AIMenuItemHandle, ai::UnicodeString&);
    AIErr (*SetItemText)(AIMenuItemHandle, const ai::UnicodeString&);
    ReservedSlot SetItemTextZString;
    AIErr (*CheckItem)(AIMenuItemHandle, AIBoolean);
    AIErr (*GetItemMenuGroup)(AIMenuItemHandle, AIMenuGroup*);
    AIErr (*AddMenuGroup)(const char*, AIMenuGroupOption, const char*, AIMenuGroup*);
    AIErr (*AddMenuGroupAsSubMenu)(const char*, AIMenuGroupOption, AIMenuItemHandle, AIMenuGroup*);
    AIErr (*GetMenuGroupName)(AIMenuGroup, const char**);
    AIErr (*GetMenuGroupOptions)(AIMenuGroup, AIMenuGroupOption*);
    AIErr (*SetMenuGroupOptions)(AIMenuGroup, AIMenuGroupOption);
    AIErr (*GetMenuGroupRange)(AIMenuGroup, AIPlatformMenuHandle*, ai::int16*, ai::int16*);
    AIErr (*CountMenuGroups)(ai::int32*);
    AIErr (*GetNthMenuGroup)(ai::int32, AIMenuGroup*);
    AIErr (*GetItemCmd)(AIMenuItemHandle, ai::int16*, ai::int16*);
    AIErr (*SetItemCmd)(AIMenuItemHandle, char, ai::int16);
    AIErr (*GetItemFunctionKey)(AIMenuItemHandle, ai::int16*, ai::int16*);
    AIErr (*SetItemFunctionKey)(AIMenuItemHandle, ai::int16, ai::int16);
    AIErr (*IsItemEnabled)(AIMenuItemHandle, AIBoolean*);
    AIErr (*IsItemChecked)(AIMenuItemHandle, AIBoolean*);
    AIErr (*RemoveMenuItem)(AIMenuItemHandle);
    AIErr (*SetMenuGroupHeader)(AIMenuGroup, const ai::UnicodeString&);
    AIErr (*InvokeMenuAction)(AICommandID);
};
