#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIURLSuite[] = "AI URL Suite";
inline constexpr ai::int32 kAIURLSuiteVersion = 2;

struct AIURLSuite {
    AIBoolean (*IsBrowserAvailable)();
    AIBoolean (*OpenURL)(const char*);
};

template <> struct ai::SuiteId<AIURLSuite> : ai::SuiteIdentity<kAIURLSuite, kAIURLSuiteVersion> {};
