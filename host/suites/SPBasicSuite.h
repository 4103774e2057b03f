#pragma once

#include "host/Types.h"

inline constexpr char kSPBasicSuite[] = "SP Basic Suite";
inline constexpr ai::int32 kSPBasicSuiteVersion = 4;

/// Comes with every message; all other suites are acquired through it.
struct SPBasicSuite {
    SPErr (*AcquireSuite)(const char*, ai::int32, const void**);
    SPErr (*ReleaseSuite)(const char*, ai::int32);
    SPBoolean (*IsEqual)(const char*, const char*);
    SPErr (*AllocateBlock)(std::size_t, void**);
    SPErr (*FreeBlock)(void*);
    SPErr (*ReallocateBlock)(void*, std::size_t, void**);
    SPErr (*Undefined)();
};
