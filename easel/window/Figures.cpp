#include "easel/window/Figures.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace easel::window {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

long processorMilliseconds() {
    FILETIME made;
    FILETIME ended;
    ULARGE_INTEGER kernel; // laid out as a FILETIME, in tenths of microseconds
    ULARGE_INTEGER user;
    GetProcessTimes(GetCurrentProcess(), &made, &ended, reinterpret_cast<FILETIME*>(&kernel),
                    reinterpret_cast<FILETIME*>(&user));
    return static_cast<long>((kernel.QuadPart + user.QuadPart) / 10'000);
}

/// An entry of the table in which GDI keeps what a process has made.
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t generation;
    std::uint8_t type; ///< 0: the entry is free.
    std::uint8_t flags;
    std::uint64_t pointer;
};

/// Wine does not count GDI objects for a program, so that its table is counted.
std::ptrdiff_t gdiObjects() {
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return told;
    constexpr std::ptrdiff_t kTableInBlock = 0xF8;
    constexpr int kEntries = 0x4000;
    const auto find = reinterpret_cast<const char* (*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlGetCurrentPeb")));
    if (find == nullptr) return 0;
    const auto* const table = *reinterpret_cast<const GdiEntry* const*>(find() + kTableInBlock);
    return table == nullptr ? 0 : std::count_if(table, table + kEntries, [](const GdiEntry& each) {
        return each.type != 0;
    });
}

/// Nor does it count USER objects: here are the windows and the menus among them.
std::ptrdiff_t userObjects() {
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) return told;
    std::ptrdiff_t count = 0;
    const auto countOwn = [](HWND window, LPARAM sum) -> BOOL {
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
            ++*reinterpret_cast<std::ptrdiff_t*>(sum);
        return TRUE;
    };
    EnumChildWindows(GetDesktopWindow(), countOwn, reinterpret_cast<LPARAM>(&count));
    constexpr std::uintptr_t kHandles = 0x10000;
    for (std::uintptr_t each = 2; each < kHandles; each += 2)
        if (IsMenu(reinterpret_cast<HMENU>(each)) != FALSE) ++count;
    return count;
}

/// The title of the dialog that has taken the keyboard from the frame; "-" when none has.
std::string dialogInFront(HWND frame) {
    const HWND front = GetActiveWindow();
    char title[64] = "-";
    if (front != frame && front != nullptr) GetWindowTextA(front, title, 64);
    return title;
}

} // namespace

Figures::Figures(const std::filesystem::path& file) {
    if (file.empty()) return;
    file_.open(file, std::ios::binary);
    file_ << "milliseconds processor paints pages messages longest-paint longest-wait gdi user "
             "left top right bottom dialog"
          << '\n'
          << std::flush;
}

void Figures::painted(Clock::time_point since, bool withPage) {
    ++paints_;
    if (withPage) ++pages_;
    longestPaint_ = std::max(longestPaint_, Milliseconds(Clock::now() - since).count());
}

void Figures::heard() {
    ++messages_;
    const auto now = static_cast<LONG>(GetTickCount());
    longestWait_ = std::max(longestWait_, now - GetMessageTime());
}

void Figures::tell(HWND frame, HWND canvas) {
    const auto now = Clock::now();
    if (!file_.is_open() || now - told_ < std::chrono::milliseconds(250)) return;
    told_ = now;
    RECT area{};
    GetWindowRect(canvas, &area);
    file_ << std::lround(Milliseconds(now - began_).count()) << ' ' << processorMilliseconds()
          << ' ' << paints_ << ' ' << pages_ << ' ' << messages_ << ' '
          << std::lround(longestPaint_) << ' ' << longestWait_ << ' ' << gdiObjects() << ' '
          << userObjects() << ' ' << area.left << ' ' << area.top << ' ' << area.right << ' '
          << area.bottom << ' ' << dialogInFront(frame) << '\n'
          << std::flush;
    longestPaint_ = 0;
    longestWait_ = 0;
}

} // namespace easel::window
