#include "toolkit/ImplWin/EditField.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace NRDM {
namespace {

bool drawsOutOfTurn(UINT message) {
    switch (message) {
    case WM_CHAR:
    case WM_KEYDOWN:
    case WM_SETTEXT:
    case WM_CUT:
    case WM_PASTE:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_SETSEL:
    case EM_REPLACESEL:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_TIMER:
        return true;
    default:
        return false;
    }
}

DWORD justifyStyle(int justify) {
    return justify == 1 ? ES_CENTER : justify == 2 ? ES_RIGHT : ES_LEFT;
}

} // namespace

void EditField::open(HWND parent, int justify) {
    Plan plan;
    plan.systemClass = L"EDIT";
    plan.style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL | justifyStyle(justify);
    plan.parent = parent;
    create(plan);
    justify_ = justify;
}

/// It takes another edit: Windows knows no way to change that of one that there is.
void EditField::setJustify(int justify) {
    if (justify == justify_) return;
    const HWND parent = GetParent(handle());
    const std::wstring kept = text();
    const bool focused = GetFocus() == handle();
    const bool enabled = IsWindowEnabled(handle()) != FALSE;
    destroy();
    open(parent, justify);
    EnableWindow(handle(), enabled);
    setText(kept);
    if (focused) SetFocus(handle());
}

void EditField::setMaximumLength(int characters) const {
    SendMessageW(handle(), EM_LIMITTEXT, static_cast<WPARAM>(characters), 0);
}

std::wstring EditField::text() const { return windowTextOf(handle()); }

void EditField::setText(const std::wstring& text) {
    if (text == this->text()) return;
    SetWindowTextW(handle(), text.c_str());
    repaint();
}

void EditField::selectAll() const { SendMessageW(handle(), EM_SETSEL, 0, -1); }

void EditField::setFont(TextStyle style, Scale scale) {
    style_ = style;
    scale_ = scale;
    ai::Owned<GdiObjectTraits<HFONT>> font(makeGdiFont(style, scale));
    SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
    SendMessageW(handle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    font_ = std::move(font); // the former one is not in use any more
    const HDC dc = GetDC(handle());
    const HGDIOBJ previous = SelectObject(dc, font_.get());
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, previous);
    ReleaseDC(handle(), dc);
    ascent_ = static_cast<int>(metrics.tmAscent);
    lineHeight_ = static_cast<int>(metrics.tmHeight);
}

void EditField::place(const RECT& area) {
    SetWindowPos(handle(), nullptr, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

EditField::Seen EditField::seen() const {
    return {text(), static_cast<DWORD>(SendMessageW(handle(), EM_GETSEL, 0, 0)),
            SendMessageW(handle(), EM_POSFROMCHAR, 0, 0)};
}

LRESULT EditField::serveSilently(UINT message, WPARAM wide, LPARAM lengthy) {
    if (silent_ || !IsWindowVisible(handle())) return HWNDBased::serve(message, wide, lengthy);
    const std::weak_ptr<const char> alive = watch();
    const Seen before = seen();
    silent_ = true;
    DefWindowProcW(handle(), WM_SETREDRAW, FALSE, 0);
    const LRESULT answer = HWNDBased::serve(message, wide, lengthy);
    if (alive.expired()) return answer;
    DefWindowProcW(handle(), WM_SETREDRAW, TRUE, 0);
    silent_ = false;
    const bool focusMoved = message == WM_SETFOCUS || message == WM_KILLFOCUS;
    const Seen after = seen();
    if (focusMoved || !(before == after)) repaint();
    if (before.text != after.text) owner_.fieldChanged();
    return answer;
}

LRESULT EditField::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    const std::weak_ptr<const char> alive = watch();
    if (owner_.fieldMessage(message, wide, lengthy) || alive.expired()) return 0;
    if (message == WM_GETDLGCODE) return DLGC_WANTALLKEYS;
    constexpr WPARAM kControlA = 1;
    if (message == WM_CHAR && wide == kControlA) {
        selectAll();
        return 0;
    }
    if (message == WM_SETTEXT) { // ours: not a change of the user's
        silent_ = true;
        const LRESULT answer = HWNDBased::serve(message, wide, lengthy);
        silent_ = false;
        return answer;
    }
    const LRESULT answer = drawsOutOfTurn(message) ? serveSilently(message, wide, lengthy)
                                                   : HWNDBased::serve(message, wide, lengthy);
    if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && !alive.expired())
        owner_.fieldFocus(message == WM_SETFOCUS, reinterpret_cast<HWND>(wide));
    return answer;
}

void EditField::paint(const Canvas& canvas, const RECT& area) {
    const Palette& palette = canvas.palette;
    const FaceState state = owner_.fieldState();
    const Colour field =
        state.enabled ? palette.field : mix(palette.background, palette.field, 0.35);
    fillRect(canvas.surface, area, field);
    const std::wstring all = text();
    DWORD first = 0;
    DWORD last = 0;
    SendMessageW(handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
    const auto leftOf = [&](std::size_t index) -> int {
        if (index < all.size())
            return static_cast<short>(LOWORD(SendMessageW(handle(), EM_POSFROMCHAR, index, 0)));
        if (all.empty()) return 0;
        const auto before =
            static_cast<short>(LOWORD(SendMessageW(handle(), EM_POSFROMCHAR, index - 1, 0)));
        return before +
               static_cast<int>(std::lround(textWidth(all.substr(index - 1), style_, scale_)));
    };
    const bool selects = state.focused && last > first;
    if (selects)
        fillRect(canvas.surface, {leftOf(first), area.top, leftOf(last), area.bottom},
                 palette.accent);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const int left = leftOf(i);
        if (left >= area.right) break;
        const bool selected = selects && i >= first && i < last;
        drawAt(canvas.surface, left, ascent_, std::wstring_view(all).substr(i, 1), style_, scale_,
               !state.enabled ? palette.dimText
               : selected     ? palette.onAccent
                              : palette.fieldText);
    }
}

} // namespace NRDM
