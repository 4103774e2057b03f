#pragma once

#include "host/Codes.h" // ahead of the system's headers, which have a name of its for themselves

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace NRDM::tests {

using Log = std::vector<std::string>;

/// A user's hands. Messages are served by `pump` only, which all others end with.
class Hands {
public:
    /// Serves messages until there are none, or for that long; counts how often each window is
    /// painted.
    void pump(int milliseconds = 0);
    [[nodiscard]] int paintsOf(HWND window) const;
    [[nodiscard]] int paints() const;
    void forgetPaints() { paints_.clear(); }

    // Input, as from the user's hand. Points are pixels of the window.
    void move(HWND window, POINT point);
    void press(HWND window, POINT point);
    void release();
    void click(HWND window, POINT point);
    void clickMiddle(HWND window);
    void wheel(int notches);
    void key(WORD key);
    void keyWith(WORD modifier, WORD key);
    void type(const std::wstring& text);
    /// Opens a menu and strikes keys in it.
    void useMenu(const std::function<void()>& open, const std::vector<WORD>& keys);

private:
    std::map<HWND, int> paints_;
};

/// Does something a while after a loop has begun to serve messages.
void soon(std::function<void()> act);

[[nodiscard]] COLORREF pixelOf(HWND window, POINT point);

/// The popup of an item of `dialog` that is open, or null.
[[nodiscard]] HWND popupOf(HWND dialog);
/// The window of its tips, or null.
[[nodiscard]] HWND tipOf(HWND dialog);

/// A window as the host's.
struct Owner {
    HWND window = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                  400, 300, nullptr, nullptr, nullptr, nullptr);
    ~Owner() { DestroyWindow(window); }
};

/// How many GDI objects this process has, counted in the table that Windows keeps of them.
[[nodiscard]] int gdiObjects();
/// How many windows this thread has, children and those without a place on the screen included.
[[nodiscard]] int windows();
/// How many menus this process has.
[[nodiscard]] int menus();

} // namespace NRDM::tests
