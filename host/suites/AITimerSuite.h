#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAITimerSuite[] = "AI Timer Suite";
inline constexpr ai::int32 kAITimerSuiteVersion = 4;

struct AITimerSuite {
    /// `period` in 1/60 s. Runs at once, and has to be stopped before the plug-in ends.
    AIErr (*AddTimer)(SPPluginRef self, const char* name, ai::int32 period, AITimerHandle* timer);
    AIErr (*GetTimerName)(AITimerHandle, char**);
    AIErr (*GetTimerActive)(AITimerHandle, AIBoolean*);
    AIErr (*SetTimerActive)(AITimerHandle timer, AIBoolean active);
    AIErr (*GetTimerPeriod)(AITimerHandle, ai::int32*);
    AIErr (*SetTimerPeriod)(AITimerHandle, ai::int32);
    AIErr (*GetTimerPlugin)(AITimerHandle, SPPluginRef*);
    AIErr (*CountTimers)(ai::int32*);
    AIErr (*GetNthTimer)(ai::int32, AITimerHandle*);
};

template <>
struct ai::SuiteId<AITimerSuite> : ai::SuiteIdentity<kAITimerSuite, kAITimerSuiteVersion> {};
