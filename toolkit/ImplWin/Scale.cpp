#include "toolkit/ImplWin/Scale.h"

namespace NRDM {
namespace {

constexpr UINT kPlainDpi = 96;

/// A function of user32 that systems before Windows 10 lack: imported, it would keep the whole
/// library from loading there. Null when it is missing.
template <typename Function> Function newerFunction(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

/// Of the main display, as it was when the user logged on.
UINT systemDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<UINT>(dpi) : kPlainDpi;
}

UINT dpiOf(HWND window) {
    using GetDpiForWindow = UINT(WINAPI*)(HWND);
    const auto ask =
        window != nullptr ? newerFunction<GetDpiForWindow>("GetDpiForWindow") : nullptr;
    const UINT dpi = ask != nullptr ? ask(window) : 0;
    return dpi != 0 ? dpi : systemDpi();
}

} // namespace

Scale scaleOf(HWND window) { return {static_cast<double>(dpiOf(window)) / kPlainDpi}; }

RECT withFrame(const RECT& client, DWORD style, DWORD extendedStyle, HWND neighbour) {
    using AdjustForDpi = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
    RECT outer = client;
    if (const auto adjust = newerFunction<AdjustForDpi>("AdjustWindowRectExForDpi"))
        adjust(&outer, style, FALSE, extendedStyle, dpiOf(neighbour));
    else
        AdjustWindowRectEx(&outer, style, FALSE, extendedStyle);
    return outer;
}

} // namespace NRDM
