#include "toolkit/ImplWin/HWNDBased.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <utility>

namespace NRDM {

HWNDBased::~HWNDBased() { destroy(); }

void HWNDBased::destroy() noexcept {
    if (window_ == nullptr) return;
    const HWND window = std::exchange(window_, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    if (classProcedure_ != nullptr)
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(classProcedure_));
    DestroyWindow(window);
}

void HWNDBased::create(const Plan& plan) {
    const auto& [systemClass, title, style, extendedStyle, place, parent, id] = plan;
    window_ = CreateWindowExW(extendedStyle, systemClass ? systemClass : screen_.windowClass.name(),
                              title, style, place.left, place.top, place.right - place.left,
                              place.bottom - place.top, parent, reinterpret_cast<HMENU>(id),
                              WindowClass::library(), nullptr);
    if (window_ == nullptr) throw NRDMResourceException();
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    if (systemClass)
        classProcedure_ = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

HWNDBased* HWNDBased::objectOf(HWND window) noexcept {
    const auto current = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
    if (current != procedure) return nullptr; // somebody else's window keeps what it likes there
    return reinterpret_cast<HWNDBased*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK HWNDBased::procedure(HWND window, UINT message, WPARAM wide, LPARAM lengthy) {
    auto* const self = reinterpret_cast<HWNDBased*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr || self->window_ == nullptr)
        return DefWindowProcW(window, message, wide, lengthy);
    const std::weak_ptr<const char> watch = self->watch();
    try {
        switch (message) {
        case WM_ERASEBKGND:
            return TRUE; // painting covers everything
        case WM_PAINT:
            return self->servePaint();
        case WM_NCDESTROY: // its parent took it along
            self->window_ = nullptr;
            return self->classProcedure_ != nullptr
                       ? CallWindowProcW(self->classProcedure_, window, message, wide, lengthy)
                       : DefWindowProcW(window, message, wide, lengthy);
        default:
            return self->serve(message, wide, lengthy);
        }
    } catch (...) {
        if (!watch.expired()) self->failed();
        return 0;
    }
}

LRESULT HWNDBased::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    return classProcedure_ != nullptr
               ? CallWindowProcW(classProcedure_, window_, message, wide, lengthy)
               : DefWindowProcW(window_, message, wide, lengthy);
}

void HWNDBased::failed() noexcept {
    if (screen_.failed) screen_.failed();
}

RECT HWNDBased::client() const {
    RECT area{};
    GetClientRect(window_, &area);
    return area;
}

void HWNDBased::repaint() const { InvalidateRect(window_, nullptr, FALSE); }

void HWNDBased::repaint(const RECT& area) const { InvalidateRect(window_, &area, FALSE); }

LRESULT HWNDBased::servePaint() {
    struct Painting {
        explicit Painting(HWND owner) : window(owner) { BeginPaint(window, &record); }
        ~Painting() { EndPaint(window, &record); }
        HWND window;
        PAINTSTRUCT record{};
    };
    const Painting painting(window_);
    paintOn(painting.record.hdc, painting.record.rcPaint);
    return 0;
}

void HWNDBased::paintOn(HDC target, const RECT& marked) {
    const RECT area = client();
    if (IsRectEmpty(&area) || IsRectEmpty(&marked)) return;
    Surface surface({area.right, area.bottom});
    surface.setClip(marked);
    const Canvas canvas{surface, screen_.palette, scale()};
    drawBackground(canvas, area);
    paint(canvas, area);
    surface.copyTo(target, marked);
}

} // namespace NRDM
