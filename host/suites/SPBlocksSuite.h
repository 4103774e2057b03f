#pragma once

#include "host/Types.h"

inline constexpr char kSPBlocksSuite[] = "SP Blocks Suite";
inline constexpr ai::int32 kSPBlocksSuiteVersion = 2;

struct SPBlocksSuite {
    SPErr (*AllocateBlock)(std::size_t, const char*, void**);
    SPErr (*FreeBlock)(void*);
    SPErr (*ReallocateBlock)(void*, std::size_t, const char*, void**);
};
