#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAINotifierSuite[] = "AI Notifier Suite";
inline constexpr ai::int32 kAINotifierSuiteVersion = 3;

struct AINotifierSuite {
    AIErr (*AddNotifier)(SPPluginRef, const char*, const char*, AINotifierHandle*);
    AIErr (*GetNotifierName)(AINotifierHandle, const char**);
    AIErr (*GetNotifierType)(AINotifierHandle, const char**);
    AIErr (*GetNotifierActive)(AINotifierHandle, AIBoolean*);
    AIErr (*SetNotifierActive)(AINotifierHandle, AIBoolean);
    AIErr (*GetNotifierPlugin)(AINotifierHandle, SPPluginRef*);
    AIErr (*CountNotifiers)(ai::int32*);
    AIErr (*GetNthNotifier)(ai::int32, AINotifierHandle*);
    AIErr (*Notify)(const char*, void*);
};
