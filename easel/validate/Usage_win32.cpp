#include "easel/validate/Usage.h"

#include <windows.h>

#include <psapi.h>

namespace easel::validate {

Usage usage() {
    PROCESS_MEMORY_COUNTERS_EX memory{};
    const HANDLE process = GetCurrentProcess();
    GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                         sizeof memory);
    return {memory.PrivateUsage,
            GetGuiResources(process, GR_GDIOBJECTS) + GetGuiResources(process, GR_USEROBJECTS)};
}

} // namespace easel::validate
