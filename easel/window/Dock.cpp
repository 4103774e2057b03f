#include "easel/window/Dock.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

namespace easel::window {
namespace {

constexpr int kLeastWidth = 240;
constexpr int kGap = 4;

HWND frameOf(const Panel& panel) {
    return GetParent(reinterpret_cast<HWND>(panel.window->client()));
}

SIZE sizeOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {area.right - area.left, area.bottom - area.top};
}

} // namespace

void Dock::open(HWND parent) {
    create({.className = L"EaselDock",
            .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
            .parent = parent});
    layers.open(handle(), 1);
}

int Dock::width() const {
    LONG width = kLeastWidth;
    for (const auto& [ref, panel] : hand_.player.bareHost().panels.all())
        if (panel->shown != 0 && panel->window != nullptr)
            width = std::max(width, sizeOf(frameOf(*panel)).cx);
    return static_cast<int>(width) + 2 * kGap;
}

void Dock::arrange() {
    LONG top = kGap;
    for (const auto& [ref, panel] : hand_.player.bareHost().panels.all()) {
        if (panel->shown == 0 || panel->window == nullptr) continue;
        const HWND frame = frameOf(*panel);
        SetWindowPos(frame, nullptr, kGap, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        top += sizeOf(frame).cy + kGap;
    }
    const SIZE area = size();
    layers.place({kGap, std::min(top, area.cy), area.cx - kGap, area.cy - kGap});
}

LRESULT Dock::handleMessage(UINT message, WPARAM first, LPARAM second) {
    if (message == WM_SIZE) {
        arrange();
        return 0;
    }
    if (message == WM_COMMAND && layers.command(LOWORD(first))) return 0;
    LRESULT answer = 0;
    if (message == WM_NOTIFY && layers.hear(*reinterpret_cast<const NMHDR*>(second), answer))
        return answer;
    return unhandled(message, first, second);
}

} // namespace easel::window
