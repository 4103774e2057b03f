#include "easel/script/System.h"

#include <windows.h>

#include <array>

namespace easel {
namespace {

/// Starts well past zero, as on a machine that has been running for a while.
ULONGLONG& simulatedTicks() {
    static ULONGLONG ticks = 1'000'000;
    return ticks;
}

ULONGLONG WINAPI tellSimulatedTicks() { return simulatedTicks(); }

template <typename T> T* at(HMODULE module, std::size_t offset) {
    return reinterpret_cast<T*>(reinterpret_cast<std::byte*>(module) + offset);
}

/// A library calls the functions of others through a table of addresses, which the system has
/// filled when it loaded the library: there `replacement` takes the place of `function`.
void replaceImport(HMODULE library, ULONGLONG function, ULONGLONG replacement) {
    const auto* const header =
        at<IMAGE_NT_HEADERS>(library, at<IMAGE_DOS_HEADER>(library, 0)->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports =
        header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (imports.VirtualAddress == 0) return;
    const auto* other = at<IMAGE_IMPORT_DESCRIPTOR>(library, imports.VirtualAddress);
    for (; other->FirstThunk != 0; ++other) {
        auto* address = at<IMAGE_THUNK_DATA>(library, other->FirstThunk);
        for (; address->u1.Function != 0; ++address) {
            if (address->u1.Function != function) continue;
            DWORD protection = 0;
            VirtualProtect(address, sizeof *address, PAGE_READWRITE, &protection);
            address->u1.Function = replacement;
            VirtualProtect(address, sizeof *address, protection, &protection);
        }
    }
}

} // namespace

bool onWindows() { return true; }

/// Plug-ins answer their messages on this thread, whose key state the system keeps for it alone.
void holdKeys(const HeldKeys& keys) {
    constexpr BYTE kDown = 0x80;
    std::array<BYTE, 256> bytes{};
    for (std::size_t key = 0; key < bytes.size(); ++key)
        if (keys[key]) bytes[key] = kDown;
    SetKeyboardState(bytes.data());
}

void takeOverClock(SPPlatformAccessRef library) {
    replaceImport(reinterpret_cast<HMODULE>(library), reinterpret_cast<ULONGLONG>(&GetTickCount64),
                  reinterpret_cast<ULONGLONG>(&tellSimulatedTicks));
}

void letTimePass(std::int64_t milliseconds) {
    simulatedTicks() += static_cast<ULONGLONG>(milliseconds);
}

} // namespace easel
