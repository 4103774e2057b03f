#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAITimerSuite[] = "AI Timer Suite";
inline constexpr ai::int32 kAITimerSuiteVersion = 4;

struct AITimerSuite {
    AIErr (*AddTimer)(SPPluginRef, const char*, ai::int32, AITimerHandle*);
    AIErr (*GetTimerName)(AITimerHandle, char**);
    AIErr (*GetTimerActive)(AITimerHandle, AIBoolean*);
    AIErr (*SetTimerActive)(AITimerHandle, AIBoolean);
    AIErr (*GetTimerPeriod)(AITimerHandle, ai::int32*);
    AIErr (*SetTimerPeriod)(AITimerHandle, ai::int32);
    AIErr (*GetTimerPlugin)(AITimerHandle, SPPluginRef*);
    AIErr (*CountTimers)(ai::int32*);
    AIErr (*GetNthTimer)(ai::int32, AITimerHandle*);
};
