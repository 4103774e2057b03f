#pragma once

#include "host/Types.h"

inline constexpr char kAIModalParentSuite[] = "AI Modal Parent Suite";
inline constexpr ai::int32 kAIModalParentSuiteVersion = 1;

struct AIModalParentSuite {
    ReservedSlot SetParent;
    AIErr (*RemoveParent)();
};
