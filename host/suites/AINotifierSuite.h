#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAINotifierSuite[] = "AI Notifier Suite";
inline constexpr ai::int32 kAINotifierSuiteVersion = 3;

struct AINotifierSuite {
    /// A message for each notification of `type`, until the plug-in ends.
    AIErr (*AddNotifier)(SPPluginRef self, const char* name, const char* type,
                         AINotifierHandle* notifier);
    AIErr (*GetNotifierName)(AINotifierHandle, const char**);
    AIErr (*GetNotifierType)(AINotifierHandle, const char**);
    AIErr (*GetNotifierActive)(AINotifierHandle, AIBoolean*);
    AIErr (*SetNotifierActive)(AINotifierHandle, AIBoolean);
    AIErr (*GetNotifierPlugin)(AINotifierHandle, SPPluginRef*);
    AIErr (*CountNotifiers)(ai::int32*);
    AIErr (*GetNthNotifier)(ai::int32, AINotifierHandle*);
    /// Sent to everyone who has registered for `type`, the sender included.
    AIErr (*Notify)(const char* type, void* data);
};

template <>
struct ai::SuiteId<AINotifierSuite> : ai::SuiteIdentity<kAINotifierSuite, kAINotifierSuiteVersion> {
};
