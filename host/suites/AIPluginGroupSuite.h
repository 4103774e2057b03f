#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIPluginGroupSuite[] = "AI Plugin Group Suite";
inline constexpr ai::int32 kAIPluginGroupSuiteVersion = 5;

struct AIPluginGroupSuite {
    ReservedSlot AddAIPluginGroup, UseAIPluginGroup, GetAIPluginGroupName, GetAIPluginGroupVersion,
        GetAIPluginGroupDescription, GetAIPluginGroupOptions, GetAIPluginGroupPlugin;
    AIErr (*CountAIPluginGroups)(ai::int32*);
    ReservedSlot GetNthAIPluginGroup, GetPluginArtName, SetPluginArtName, GetPluginArtVersion,
        SetPluginArtVersion, GetPluginArtPluginGroup, SetPluginArtPluginGroup;
    /// What is edited; no child of `art`.
    AIErr (*GetPluginArtEditArt)(AIArtHandle art, AIArtHandle* group);
    ReservedSlot SetPluginArtEditArt;
    /// What is painted; made anew by its owner at each update.
    AIErr (*GetPluginArtResultArt)(AIArtHandle art, AIArtHandle* group);
    ReservedSlot SetPluginArtResultArt;
    AIErr (*GetPluginArtDataCount)(AIArtHandle, std::size_t*);
    AIErr (*SetPluginArtDataCount)(AIArtHandle, std::size_t);
    AIErr (*GetPluginArtDataRange)(AIArtHandle, void*, std::size_t, std::size_t);
    AIErr (*SetPluginArtDataRange)(AIArtHandle, void*, std::size_t, std::size_t);
    AIErr (*MarkPluginArtDirty)(AIArtHandle);
    AIErr (*MarkPluginArtClean)(AIArtHandle);
    AIErr (*GetPluginArtClipping)(AIArtHandle, AIBoolean*);
    ReservedSlot SetPluginArtClipping, GetAIPluginGroupDefaultName, SetAIPluginGroupDefaultName,
        GetAIPluginGroupAppVersion, SetAIPluginGroupAppVersion;
    AIErr (*MarkPluginArtSilent)(AIArtHandle);
    ReservedSlot PluginArtAdjustColors;
};

template <>
struct ai::SuiteId<AIPluginGroupSuite>
    : ai::SuiteIdentity<kAIPluginGroupSuite, kAIPluginGroupSuiteVersion> {};
