#include "easel/core/SystemObjects.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>

namespace easel {
namespace {

/// An entry of the table in which GDI keeps what a process has made.
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t generation;
    std::uint8_t type; ///< 0: the entry is free.
    std::uint8_t flags;
    std::uint64_t pointer;
};

/// Wine does not count GDI objects for a program, so its table is counted.
std::size_t gdiObjects() {
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return told;
    constexpr std::ptrdiff_t kTableInBlock = 0xF8;
    constexpr int kEntries = 0x4000;
    const auto find = reinterpret_cast<const char* (*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlGetCurrentPeb")));
    if (find == nullptr) return 0;
    const auto* const table = *reinterpret_cast<const GdiEntry* const*>(find() + kTableInBlock);
    if (table == nullptr) return 0;
    return static_cast<std::size_t>(std::count_if(
        table, table + kEntries, [](const GdiEntry& each) { return each.type != 0; }));
}

/// Nor does it count USER objects: these are the windows and the menus among them.
std::size_t userObjects() {
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) return told;
    std::size_t count = 0;
    const auto countOwn = [](HWND window, LPARAM sum) -> BOOL {
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
            ++*reinterpret_cast<std::size_t*>(sum);
        return TRUE;
    };
    EnumChildWindows(GetDesktopWindow(), countOwn, reinterpret_cast<LPARAM>(&count));
    constexpr std::uintptr_t kHandles = 0x10000;
    for (std::uintptr_t each = 2; each < kHandles; each += 2)
        if (IsMenu(reinterpret_cast<HMENU>(each)) != FALSE) ++count;
    return count;
}

} // namespace

SystemObjects systemObjects() { return {gdiObjects(), userObjects()}; }

} // namespace easel
