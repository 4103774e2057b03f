#include "toolkit/ImplWin/PopupWindow.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace NRDM {

PopupWindow::PopupWindow(NativeDialog& dialog, std::function<void()> closed)
    : HWNDBased(dialog.screen()), dialog_(dialog), closed_(std::move(closed)) {}

void PopupWindow::open(const RECT& anchor, SIZE size) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromRect(&anchor, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    const bool below = anchor.bottom + size.cy <= work.bottom || anchor.top - size.cy < work.top;
    const LONG top = below ? anchor.bottom : anchor.top - size.cy;
    const LONG left = std::clamp(anchor.left, work.left, std::max(work.left, work.right - size.cx));
    Plan plan;
    plan.style = WS_POPUP;
    plan.extendedStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
    plan.place = {left, top, left + size.cx, top + size.cy};
    plan.parent = GetAncestor(dialog_.handle(), GA_ROOT);
    create(plan);
    SetWindowPos(handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    SetCapture(handle());
}

void PopupWindow::close() {
    if (const std::function<void()> closed = std::exchange(closed_, nullptr)) {
        if (GetCapture() == handle()) ReleaseCapture();
        closed();
    }
}

LRESULT PopupWindow::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_CAPTURECHANGED:
        close();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN: {
        const RECT area = client();
        if (!PtInRect(&area, {GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)})) {
            close();
            return 0;
        }
        break;
    }
    default:
        break;
    }
    return HWNDBased::serve(message, wide, lengthy);
}

} // namespace NRDM
