#pragma once

#include "host/Types.h"

inline constexpr char kSPBasicSuite[] = "SP Basic Suite";
inline constexpr ai::int32 kSPBasicSuiteVersion = 4;

/// Comes with every message; all other suites are acquired through it.
struct SPBasicSuite {
    /// Exactly that version. The table stays where it is until `ReleaseSuite` has been called as
    /// often.
    SPErr (*AcquireSuite)(const char* name, ai::int32 version, const void** functions);
    SPErr (*ReleaseSuite)(const char* name, ai::int32 version);
    SPBoolean (*IsEqual)(const char*, const char*);
    SPErr (*AllocateBlock)(std::size_t size, void** block);
    /// Null is accepted.
    SPErr (*FreeBlock)(void* block);
    SPErr (*ReallocateBlock)(void*, std::size_t, void**);
    SPErr (*Undefined)();
};
