#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAICountedObjectSuite[] = "AI Counted Object Suite";
inline constexpr ai::int32 kAICountedObjectSuiteVersion = 2;

struct AICountedObjectSuite {
    ai::int32 (*AddRef)(void*);
    /// Null is accepted. Answers the new count.
    ai::int32 (*Release)(void* object);
};

template <>
struct ai::SuiteId<AICountedObjectSuite>
    : ai::SuiteIdentity<kAICountedObjectSuite, kAICountedObjectSuiteVersion> {};
