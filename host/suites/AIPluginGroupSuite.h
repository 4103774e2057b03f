#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIPluginGroupSuite[] = "AI Plugin Group Suite";
inline constexpr ai::int32 kAIPluginGroupSuiteVersion = 5;

struct AIPluginGroupSuite {
    ReservedSlot AddAIPluginGroup;
    AIErr (*UseAIPluginGroup)(AIArtHandle, AIPluginGroupHandle);
    AIErr (*GetAIPluginGroupName)(AIPluginGroupHandle, char**);
    AIErr (*GetAIPluginGroupVersion)(AIPluginGroupHandle, ai::int32*, ai::int32*);
    AIErr (*GetAIPluginGroupDescription)(AIPluginGroupHandle, char**);
    AIErr (*GetAIPluginGroupOptions)(AIPluginGroupHandle, ai::int32*);
    AIErr (*GetAIPluginGroupPlugin)(AIPluginGroupHandle, SPPluginRef*);
    AIErr (*CountAIPluginGroups)(ai::int32*);
    AIErr (*GetNthAIPluginGroup)(ai::int32, AIPluginGroupHandle*);
    AIErr (*GetPluginArtName)(AIArtHandle, char**);
    AIErr (*SetPluginArtName)(AIArtHandle, char*);
    AIErr (*GetPluginArtVersion)(AIArtHandle, ai::int32*, ai::int32*);
    AIErr (*SetPluginArtVersion)(AIArtHandle, ai::int32, ai::int32);
    AIErr (*GetPluginArtPluginGroup)(AIArtHandle, AIPluginGroupHandle*);
    AIErr (*SetPluginArtPluginGroup)(AIArtHandle);
    AIErr (*GetPluginArtEditArt)(AIArtHandle, AIArtHandle*);
    AIErr (*SetPluginArtEditArt)(AIArtHandle, AIArtHandle);
    AIErr (*GetPluginArtResultArt)(AIArtHandle, AIArtHandle*);
    AIErr (*SetPluginArtResultArt)(AIArtHandle, AIArtHandle);
    AIErr (*GetPluginArtDataCount)(AIArtHandle, std::size_t*);
    AIErr (*SetPluginArtDataCount)(AIArtHandle, std::size_t);
    AIErr (*GetPluginArtDataRange)(AIArtHandle, void*, std::size_t, std::size_t);
    AIErr (*SetPluginArtDataRange)(AIArtHandle, void*, std::size_t, std::size_t);
    AIErr (*MarkPluginArtDirty)(AIArtHandle);
    AIErr (*MarkPluginArtClean)(AIArtHandle);
    AIErr (*GetPluginArtClipping)(AIArtHandle, AIBoolean*);
    AIErr (*SetPluginArtClipping)(AIArtHandle, AIBoolean);
    AIErr (*GetAIPluginGroupDefaultName)(AIPluginGroupHandle, char**);
    AIErr (*SetAIPluginGroupDefaultName)(AIPluginGroupHandle, const char*);
    ReservedSlot GetAIPluginGroupAppVersion;
    ReservedSlot SetAIPluginGroupAppVersion;
    AIErr (*MarkPluginArtSilent)(AIArtHandle);
    ReservedSlot PluginArtAdjustColors;
};
