#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIBlockSuite[] = "AI Block Suite";
inline constexpr ai::int32 kAIBlockSuiteVersion = 3;

struct AIBlockSuite {
    AIErr (*AllocateBlock)(std::size_t, void**);
    AIErr (*DisposeBlock)(void*);
    AIErr (*ReallocateBlock)(void*, std::size_t, void**);
    AIErr (*SizeOfMemoryBlock)(void*, std::size_t*);
};

template <>
struct ai::SuiteId<AIBlockSuite> : ai::SuiteIdentity<kAIBlockSuite, kAIBlockSuiteVersion> {};
