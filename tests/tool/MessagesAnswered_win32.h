#pragma once

#include <windows.h>

#include <string_view>

namespace facetta::tests {

/// While it lives, message boxes of this thread are closed as by Escape: where every host call
/// fails, the plug-in tells of it with the system's own, which would wait for ever.
class MessagesAnswered {
public:
    MessagesAnswered() : timer_(SetTimer(nullptr, 0, kMilliseconds, tick)) {}
    ~MessagesAnswered() { KillTimer(nullptr, timer_); }
    MessagesAnswered(const MessagesAnswered&) = delete;
    MessagesAnswered& operator=(const MessagesAnswered&) = delete;

private:
    static constexpr UINT kMilliseconds = 10;

    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
        EnumThreadWindows(GetCurrentThreadId(), closeMessage, 0);
    }

    static BOOL CALLBACK closeMessage(HWND window, LPARAM) {
        constexpr std::wstring_view kDialogClass = L"#32770";
        wchar_t name[16]{};
        if (GetClassNameW(window, name, std::size(name)) > 0 && name == kDialogClass)
            PostMessageW(window, WM_CLOSE, 0, 0);
        return TRUE;
    }

    UINT_PTR timer_;
};

} // namespace facetta::tests
