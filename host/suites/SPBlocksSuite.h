#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kSPBlocksSuite[] = "SP Blocks Suite";
inline constexpr ai::int32 kSPBlocksSuiteVersion = 2;

struct SPBlocksSuite {
    /// `debug` is a text for the host's own tracing.
    SPErr (*AllocateBlock)(std::size_t size, const char* debug, void** block);
    SPErr (*FreeBlock)(void* block);
    SPErr (*ReallocateBlock)(void*, std::size_t, const char*, void**);
};

template <>
struct ai::SuiteId<SPBlocksSuite> : ai::SuiteIdentity<kSPBlocksSuite, kSPBlocksSuiteVersion> {};
