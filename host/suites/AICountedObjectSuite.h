#pragma once

#include "host/Types.h"

inline constexpr char kAICountedObjectSuite[] = "AI Counted Object Suite";
inline constexpr ai::int32 kAICountedObjectSuiteVersion = 2;

struct AICountedObjectSuite {
    ai::int32 (*AddRef)(void*);
    ai::int32 (*Release)(void*);
};
