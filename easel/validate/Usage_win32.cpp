#include "easel/validate/Usage.h"

#include "easel/core/SystemObjects.h"

#include <windows.h>

#include <psapi.h>

namespace easel::validate {

Usage usage() {
    PROCESS_MEMORY_COUNTERS_EX memory{};
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                         sizeof memory);
    const SystemObjects objects = systemObjects();
    return {memory.PrivateUsage, objects.gdi + objects.user};
}

} // namespace easel::validate
