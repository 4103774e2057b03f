#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace easel::window {

/// How a window of ours is made.
struct WindowPlan {
    const wchar_t* className;
    const wchar_t* title = L"";
    DWORD style = WS_CHILD | WS_VISIBLE;
    HWND parent = nullptr;
    HMENU menu = nullptr;
    int width = 0;
    int height = 0;
};

/// A window whose messages are handled here. Nothing that a handler throws reaches the system.
class NativeWindow {
public:
    NativeWindow(const NativeWindow&) = delete;
    NativeWindow& operator=(const NativeWindow&) = delete;

    [[nodiscard]] HWND handle() const noexcept { return handle_; }
    [[nodiscard]] SIZE size() const;
    void place(const RECT& area) const;

protected:
    NativeWindow() = default;
    virtual ~NativeWindow();

    void create(const WindowPlan& plan);
    void destroy();
    /// Those that are not handled go to `unhandled`.
    virtual LRESULT handleMessage(UINT message, WPARAM first, LPARAM second) = 0;
    [[nodiscard]] LRESULT unhandled(UINT message, WPARAM first, LPARAM second) const {
        return DefWindowProcW(handle_, message, first, second);
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);

    HWND handle_ = nullptr;
};

/// A control of the system's.
HWND makeControl(const wchar_t* className, const wchar_t* text, DWORD style, HWND parent, int id);
void placeWindow(HWND window, const RECT& area);

[[nodiscard]] std::wstring wide(std::string_view utf8);
[[nodiscard]] std::string utf8(std::wstring_view text);

} // namespace easel::window
