#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIModalParentSuite[] = "AI Modal Parent Suite";
inline constexpr ai::int32 kAIModalParentSuiteVersion = 1;

/// The window that owns what the host shows above a modal window of the plug-in's.
struct AIModalParentSuite {
    AIErr (*SetParent)(const AIWindowRef&);
    AIErr (*RemoveParent)();
};
