#include "tests/toolkit/win/Hands.h"

#include <winternl.h>

#include <algorithm>
#include <stdexcept>
#include <thread>
#include <utility>

namespace NRDM::tests {
namespace {

void send(INPUT input) { SendInput(1, &input, sizeof input); }

INPUT keyInput(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    return input;
}

INPUT mouseInput(DWORD flags, DWORD data = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    return input;
}

} // namespace

void Hands::pump(int milliseconds) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    do {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            if (message.message == WM_PAINT) ++paints_[message.hwnd];
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (milliseconds > 0) Sleep(1);
    } while (GetTickCount64() < end);
}

int Hands::paintsOf(HWND window) const {
    const auto found = paints_.find(window);
    return found == paints_.end() ? 0 : found->second;
}

int Hands::paints() const {
    int all = 0;
    for (const auto& [window, count] : paints_)
        all += count;
    return all;
}

void Hands::move(HWND window, POINT point) {
    ClientToScreen(window, &point);
    INPUT input = mouseInput(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    // In 65536ths of the screen, rounded so that the pixel comes out again.
    input.mi.dx = (point.x * 65536 + 65535) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (point.y * 65536 + 65535) / GetSystemMetrics(SM_CYSCREEN);
    send(input);
    pump();
}

void Hands::press(HWND window, POINT point) {
    move(window, point);
    send(mouseInput(MOUSEEVENTF_LEFTDOWN));
    pump();
}

void Hands::release() {
    send(mouseInput(MOUSEEVENTF_LEFTUP));
    pump();
}

void Hands::click(HWND window, POINT point) {
    press(window, point);
    release();
}

void Hands::clickMiddle(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    click(window, {area.right / 2, area.bottom / 2});
}

void Hands::wheel(int notches) {
    send(mouseInput(MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches) * WHEEL_DELTA));
    pump();
}

void Hands::key(WORD key) {
    send(keyInput(key, 0));
    send(keyInput(key, KEYEVENTF_KEYUP));
    pump();
}

void Hands::keyWith(WORD modifier, WORD wanted) {
    send(keyInput(modifier, 0));
    pump();
    key(wanted);
    send(keyInput(modifier, KEYEVENTF_KEYUP));
    pump();
}

void Hands::type(const std::wstring& text) {
    for (const wchar_t letter : text) {
        INPUT input = keyInput(0, KEYEVENTF_UNICODE);
        input.ki.wScan = letter;
        send(input);
        input.ki.dwFlags |= KEYEVENTF_KEYUP;
        send(input);
        pump();
    }
}

void Hands::useMenu(const std::function<void()>& open, const std::vector<WORD>& keys) {
    // A menu has a loop of its own: another thread's hand is on the keys meanwhile.
    std::thread hand([&keys] {
        constexpr int kMostWaits = 200;
        for (int waits = 0; waits < kMostWaits; ++waits, Sleep(25))
            if (IsWindowVisible(FindWindowW(L"#32768", nullptr)) != FALSE) break;
        for (const WORD key : keys) {
            Sleep(150);
            send(keyInput(key, 0));
            send(keyInput(key, KEYEVENTF_KEYUP));
        }
    });
    open();
    hand.join();
    pump();
}

COLORREF pixelOf(HWND window, POINT point) {
    const HDC dc = GetDC(window);
    const COLORREF colour = GetPixel(dc, point.x, point.y);
    ReleaseDC(window, dc);
    return colour;
}

void soon(std::function<void()> act) {
    static std::function<void()> pending;
    pending = std::move(act);
    SetTimer(nullptr, 0, 30, [](HWND, UINT, UINT_PTR timer, DWORD) {
        KillTimer(nullptr, timer);
        const auto now = std::exchange(pending, nullptr);
        now();
    });
}

HWND popupOf(HWND dialog) {
    struct Search {
        HWND dialog;
        HWND found;
    } search{dialog, nullptr};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& sought = *reinterpret_cast<Search*>(parameter);
            const bool popup = (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_NOACTIVATE) != 0;
            if (popup && GetWindow(window, GW_OWNER) == sought.dialog) sought.found = window;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND tipOf(HWND dialog) {
    HWND tip = nullptr;
    while ((tip = FindWindowExW(nullptr, tip, L"tooltips_class32", nullptr)) != nullptr)
        if (GetWindow(tip, GW_OWNER) == dialog) return tip;
    return nullptr;
}

int gdiObjects() {
    // Windows keeps one table for all processes and shows each of them its entries.
    constexpr std::size_t kTableInPeb = 0xF8;
    constexpr int kEntries = 16384;
    struct Entry {
        std::uint64_t object;
        std::uint32_t owner;
        std::uint16_t generation; // stays when the object has gone
        std::uint8_t type;
        std::uint8_t flags;
        std::uint64_t data;
    };
    static_assert(sizeof(Entry) == 24);
    // Asked of the system, not read through the segment register: the optimiser takes that read
    // for one outside an array and warns.
    PROCESS_BASIC_INFORMATION process{};
    if (NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process,
                                  sizeof process, nullptr) != 0)
        throw std::runtime_error("the process cannot be asked for its environment block");
    const auto* const peb = reinterpret_cast<const std::byte*>(process.PebBaseAddress);
    const auto* const table = *reinterpret_cast<const Entry* const*>(peb + kTableInPeb);
    return static_cast<int>(
        std::count_if(table, table + kEntries, [](const Entry& entry) { return entry.type != 0; }));
}

int windows() {
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM counter) -> BOOL {
            ++*reinterpret_cast<int*>(counter);
            EnumChildWindows(
                window,
                [](HWND, LPARAM inner) -> BOOL {
                    ++*reinterpret_cast<int*>(inner);
                    return TRUE;
                },
                counter);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    for (HWND window = nullptr;
         (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) ++count;
    return count;
}

int menus() {
    // A handle's low half alone names an object, too: as many names as there can be objects.
    int count = 0;
    for (std::uintptr_t name = 0x20; name < 0x10000; name += 2)
        if (IsMenu(reinterpret_cast<HMENU>(name)) != FALSE) ++count;
    return count;
}

} // namespace NRDM::tests
