#pragma once

#include "host/Handles.h"
#include "host/Types.h"

#include <array>

inline constexpr char kAIModalParentSuite[] = "AI Modal Parent Suite";
inline constexpr ai::int32 kAIModalParentSuiteVersion = 1;
/// A newer version, numbered anew because of reals, of which this suite has none.
inline constexpr std::array<ai::int32, 1> kAIModalParentSuiteFallbacks{2};

/// The window that owns what the host shows above a modal window of the plug-in's.
struct AIModalParentSuite {
    AIErr (*SetParent)(const AIWindowRef&);
    AIErr (*RemoveParent)();
};
