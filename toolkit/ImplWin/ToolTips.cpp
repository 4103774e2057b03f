#include "toolkit/ImplWin/ToolTips.h"

#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplWin/NativeDialog.h"
#include "toolkit/ImplWin/Text.h"
#include "toolkit/ImplWin/WindowClass.h"

#include <commctrl.h>

#include <utility>

namespace NRDM {
namespace {

constexpr int kTipFont = 13; // ADM's number
constexpr int kWidestTip = 320;
constexpr int kTipMargin = 4;

TOOLINFOW entryOf(HWND dialog, const void* item) {
    TOOLINFOW entry{};
    entry.cbSize = TTTOOLINFOW_V2_SIZE; // what every version of the control knows
    entry.hwnd = dialog;
    entry.uId = reinterpret_cast<UINT_PTR>(item);
    return entry;
}

LRESULT ask(HWND tips, UINT message, TOOLINFOW& entry) {
    return SendMessageW(tips, message, 0, reinterpret_cast<LPARAM>(&entry));
}

} // namespace

/// The control looks for entries of the window below the pointer, which is an item's: that it is to
/// take the dialog's instead can only be said by a procedure before its own.
LRESULT CALLBACK ToolTips::procedure(HWND window, UINT message, WPARAM wide, LPARAM lengthy) {
    const auto* const self =
        reinterpret_cast<const ToolTips*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == TTM_WINDOWFROMPOINT) {
        const HWND dialog = self->dialog_.handle();
        const HWND below = WindowFromPoint(*reinterpret_cast<const POINT*>(lengthy));
        return reinterpret_cast<LRESULT>(IsChild(dialog, below) ? dialog : below);
    }
    return CallWindowProcW(self->classProcedure_, window, message, wide, lengthy);
}

void ToolTips::create() {
    const INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_BAR_CLASSES}; // tips are among them
    InitCommonControlsEx(&wanted);
    *window_.put() = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"",
                                     WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                     dialog_.handle(), nullptr, WindowClass::library(), nullptr);
    if (!window_) throw NRDMResourceException();
    SetWindowLongPtrW(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    classProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window_.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    const Scale scale = dialog_.scale();
    *font_.put() = makeGdiFont(textStyleOf(kTipFont, true), scale);
    SendMessageW(window_.get(), WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    SendMessageW(window_.get(), TTM_SETMAXTIPWIDTH, 0, scale.toPixels(kWidestTip));
    const int margin = scale.toPixels(kTipMargin);
    const RECT margins{margin, margin / 2, margin, margin / 2};
    SendMessageW(window_.get(), TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&margins));
}

void ToolTips::colour() const {
    SendMessageW(window_.get(), TTM_SETTIPBKCOLOR, toColorRef(dialog_.palette().tip), 0);
    SendMessageW(window_.get(), TTM_SETTIPTEXTCOLOR, toColorRef(dialog_.palette().text), 0);
}

void ToolTips::set(const void* item, const std::wstring& text, const RECT& area) {
    if (text.empty()) {
        remove(item);
        return;
    }
    if (!window_) create();
    std::wstring copy = text; // the control takes a copy but wants one it could write to
    TOOLINFOW entry = entryOf(dialog_.handle(), item);
    ask(window_.get(), TTM_DELTOOLW, entry);
    entry.rect = area;
    entry.lpszText = copy.data();
    ask(window_.get(), TTM_ADDTOOLW, entry);
}

void ToolTips::remove(const void* item) noexcept {
    if (!window_) return;
    TOOLINFOW entry = entryOf(dialog_.handle(), item);
    ask(window_.get(), TTM_DELTOOLW, entry);
}

void ToolTips::relay(UINT message, WPARAM wide, POINT point) const {
    if (!window_) return;
    if (message == WM_MOUSEMOVE && !IsWindowVisible(window_.get())) colour();
    MSG relayed{};
    relayed.hwnd = dialog_.handle();
    relayed.message = message;
    relayed.wParam = wide;
    relayed.lParam = MAKELPARAM(point.x, point.y);
    SendMessageW(window_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ToolTips::show(const void* item, bool shown) const {
    if (!window_) return;
    if (!shown) {
        SendMessageW(window_.get(), TTM_POP, 0, 0);
        return;
    }
    TOOLINFOW entry = entryOf(dialog_.handle(), item);
    if (ask(window_.get(), TTM_GETTOOLINFOW, entry) == 0) return;
    colour();
    POINT middle{(entry.rect.left + entry.rect.right) / 2,
                 (entry.rect.top + entry.rect.bottom) / 2};
    relay(WM_MOUSEMOVE, 0, middle);
    SendMessageW(window_.get(), TTM_POPUP, 0, 0);
}

void ToolTips::close() noexcept {
    window_.reset();
    font_.reset();
}

} // namespace NRDM
