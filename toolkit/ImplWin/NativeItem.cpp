#include "toolkit/ImplWin/NativeItem.h"

#include <windowsx.h>

namespace NRDM {
namespace {

/// ADM's own cursors, which are the system's.
LPCWSTR systemCursor(int number) {
    switch (number) {
    case -1:
        return IDC_IBEAM;
    case -2:
        return IDC_CROSS;
    case -3:
        return IDC_WAIT;
    case -4:
    case -9:
        return IDC_ARROW;
    case -5:
        return IDC_NO;
    case -6:
        return IDC_HAND;
    default:
        return nullptr;
    }
}

/// The cursor with ADM's number, or null for the control's own.
HCURSOR cursorOf(const Screen& screen, int number) {
    if (number > 0) return screen.cursorOf ? screen.cursorOf(number) : nullptr;
    const LPCWSTR name = systemCursor(number);
    return name != nullptr ? LoadCursorW(nullptr, name) : nullptr;
}

bool isMouseMessage(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST; }

} // namespace

NativeItem::NativeItem(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : HWNDBased(dialog.screen()), dialog_(dialog), view_(view), events_(events) {}

NativeItem::~NativeItem() { dialog_.tips().remove(this); }

void NativeItem::createItem(const wchar_t* systemClass, DWORD style) {
    const std::wstring title = windowText();
    Plan plan;
    plan.systemClass = systemClass;
    plan.title = title.c_str();
    plan.id = view_.id;
    plan.style = WS_CHILD | WS_CLIPSIBLINGS | style | (view_.visible ? WS_VISIBLE : 0U) |
                 (view_.enabled ? 0U : WS_DISABLED);
    plan.place = scale().toPixels(
        RECT{view_.bounds.left, view_.bounds.top, view_.bounds.right, view_.bounds.bottom});
    plan.parent = dialog_.handle();
    create(plan);
    // Windows puts a new child below its siblings; what is created later is to lie above.
    SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    applyTip();
}

void NativeItem::applyTip() {
    const Bounds& bounds = view_.bounds;
    dialog_.tips().set(
        this, view_.visible ? toWide(view_.tip) : std::wstring(),
        scale().toPixels(RECT{bounds.left, bounds.top, bounds.right, bounds.bottom}));
}

void NativeItem::changed(Aspect aspects) {
    if (has(aspects, Aspect::Bounds)) {
        const Bounds& bounds = view_.bounds;
        const RECT place =
            scale().toPixels(RECT{bounds.left, bounds.top, bounds.right, bounds.bottom});
        SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (has(aspects, Aspect::Text | Aspect::Value | Aspect::Entries)) showWindowText();
    if (has(aspects, Aspect::Visible)) ShowWindow(handle(), view_.visible ? SW_SHOWNA : SW_HIDE);
    if (has(aspects, Aspect::Enabled)) EnableWindow(handle(), view_.enabled);
    if (has(aspects, Aspect::Tip | Aspect::Bounds | Aspect::Visible)) applyTip();
    if (aspects != Aspect::Tip) repaint();
}

void NativeItem::showWindowText() {
    const std::wstring text = windowText();
    if (text != windowTextOf(handle())) SetWindowTextW(handle(), text.c_str());
}

void NativeItem::focus() { SetFocus(focusWindow()); }

void NativeItem::showTip(bool shown) { dialog_.tips().show(this, shown); }

bool NativeItem::notified(UINT, WPARAM, LPARAM, LRESULT&) { return false; }

Justify NativeItem::justify() const {
    return view_.justify == 1   ? Justify::Centre
           : view_.justify == 2 ? Justify::Right
                                : Justify::Left;
}

FaceState NativeItem::state() const {
    FaceState state;
    state.enabled = view_.enabled && dialog_.view().enabled;
    state.hot = hot_ && state.enabled;
    state.focused = hasFocus();
    state.isDefault = view_.isDefault;
    state.keyboardCues = dialog_.keyboardCues();
    return state;
}

void NativeItem::drawPicture(const Canvas& canvas, const RECT& area, const FaceState& state) {
    Pictures& pictures = screen().pictures;
    const bool dark = canvas.palette.dark;
    const PictureIds& ids = view_.pictures;
    const int wanted = !state.enabled              ? ids.disabled
                       : state.on || state.pressed ? ids.selected
                       : state.hot                 ? ids.rollover
                                                   : ids.normal;
    const bool own = wanted != 0 && pictures.exists(wanted, dark);
    const int id = own ? wanted : ids.normal;
    const SIZE size = pictures.size(id, dark);
    const int width = canvas.scale.toPixels(size.cx);
    const int height = canvas.scale.toPixels(size.cy);
    const auto tint = state.enabled || own ? Pictures::Tint::None : Pictures::Tint::Dimmed;
    pictures.draw(canvas.surface, id, dark, canvas.scale,
                  static_cast<int>(area.left + (area.right - area.left - width) / 2),
                  static_cast<int>(area.top + (area.bottom - area.top - height) / 2), tint);
}

void NativeItem::relayToTips(HWND source, UINT message, WPARAM wide, LPARAM lengthy) const {
    if (!isMouseMessage(message) || message == WM_MOUSEWHEEL) return;
    POINT point{GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)};
    MapWindowPoints(source, dialog_.handle(), &point, 1);
    dialog_.tips().relay(message, wide, point);
}

bool NativeItem::serveWheel(WPARAM wide) {
    if (!takesWheel()) return false;
    wheelRest_ += GET_WHEEL_DELTA_WPARAM(wide);
    const int steps = wheelRest_ / WHEEL_DELTA;
    wheelRest_ -= steps * WHEEL_DELTA;
    if (steps != 0) wheel(steps);
    return true;
}

bool NativeItem::serveKey(UINT message, WPARAM wide) {
    const std::weak_ptr<const char> alive = watch();
    if (message == WM_KEYDOWN && key(wide)) return true;
    return alive.expired() || dialog_.dialogKey(message, wide);
}

LRESULT NativeItem::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    relayToTips(handle(), message, wide, lengthy);
    switch (message) {
    case WM_MOUSEMOVE:
        if (!hot_) {
            hot_ = true;
            TRACKMOUSEEVENT request{sizeof(request), TME_LEAVE, handle(), 0};
            TrackMouseEvent(&request);
            if (reactsToPointer()) repaint();
        }
        break;
    case WM_MOUSELEAVE:
        hot_ = false;
        if (reactsToPointer()) repaint();
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
        if (message == WM_SETFOCUS) dialog_.focusCame(reinterpret_cast<HWND>(wide));
        const std::weak_ptr<const char> alive = watch();
        repaint();
        const LRESULT answer = HWNDBased::serve(message, wide, lengthy);
        if (!alive.expired()) events_.activated(message == WM_SETFOCUS);
        return answer;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
    case WM_CHAR:
        if (serveKey(message, wide)) return 0;
        break;
    case WM_MOUSEWHEEL:
        if (serveWheel(wide)) return 0;
        break;
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS; // a host's own dialog loop must not eat them
    case WM_SETCURSOR:
        if (const HCURSOR cursor = cursorOf(screen(), view_.cursor)) {
            SetCursor(cursor);
            return TRUE;
        }
        break;
    default:
        break;
    }
    return HWNDBased::serve(message, wide, lengthy);
}

} // namespace NRDM
