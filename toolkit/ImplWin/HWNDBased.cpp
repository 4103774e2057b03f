#include "toolkit/ImplWin/HWNDBased.h"

#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplWin/WindowClass.h"

#include <unordered_map>
#include <utility>

namespace NRDM {

std::wstring windowTextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

/// What is known of a window of ours from its creation to its end; the object may go before, and
/// the window still gets its last messages. All windows are of one thread.
struct HWNDBased::Bond {
    HWNDBased* object;
    WNDPROC classProcedure;

    static std::unordered_map<HWND, Bond>& all() {
        static std::unordered_map<HWND, Bond> bonds;
        return bonds;
    }
    static Bond* of(HWND window) noexcept {
        const auto found = all().find(window);
        return found != all().end() ? &found->second : nullptr;
    }
};

HWNDBased::~HWNDBased() { destroy(); }

void HWNDBased::destroy() noexcept {
    if (window_ == nullptr) return;
    const HWND window = std::exchange(window_, nullptr);
    if (Bond* const bond = Bond::of(window)) bond->object = nullptr;
    DestroyWindow(window);
}

void HWNDBased::create(const Plan& plan) {
    const auto& [systemClass, title, style, extendedStyle, place, parent, id] = plan;
    window_ = CreateWindowExW(
        extendedStyle, systemClass ? systemClass : WindowClass::ofLibrary().name(), title, style,
        place.left, place.top, place.right - place.left, place.bottom - place.top, parent,
        reinterpret_cast<HMENU>(id), WindowClass::library(), nullptr);
    if (window_ == nullptr) throw NRDMResourceException();
    if (systemClass)
        classProcedure_ = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window_, GWLP_WNDPROC));
    try {
        Bond::all().insert_or_assign(window_, Bond{this, classProcedure_});
    } catch (...) {
        DestroyWindow(std::exchange(window_, nullptr));
        throw;
    }
    if (systemClass)
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

HWNDBased* HWNDBased::objectOf(HWND window) noexcept {
    const Bond* const bond = Bond::of(window);
    return bond != nullptr ? bond->object : nullptr;
}

LRESULT CALLBACK HWNDBased::procedure(HWND window, UINT message, WPARAM wide, LPARAM lengthy) {
    Bond* const bond = Bond::of(window);
    if (bond == nullptr) return DefWindowProcW(window, message, wide, lengthy);
    const WNDPROC classProcedure = bond->classProcedure;
    HWNDBased* const self = bond->object;
    if (message == WM_NCDESTROY) { // also when its parent takes it along
        Bond::all().erase(window);
        if (self != nullptr) self->window_ = nullptr;
        return CallWindowProcW(classProcedure, window, message, wide, lengthy);
    }
    if (self == nullptr) return CallWindowProcW(classProcedure, window, message, wide, lengthy);
    const std::weak_ptr<const char> watch = self->watch();
    try {
        switch (message) {
        case WM_ERASEBKGND:
            return TRUE; // painting covers everything
        case WM_PAINT:
            return self->servePaint();
        default:
            return self->serve(message, wide, lengthy);
        }
    } catch (...) {
        if (!watch.expired()) self->failed();
        return 0;
    }
}

LRESULT HWNDBased::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    return CallWindowProcW(classProcedure_, window_, message, wide, lengthy);
}

void HWNDBased::failed() noexcept {
    if (screen_->failed) screen_->failed();
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
    const Canvas canvas{surface, palette(), scale()};
    drawBackground(canvas, area);
    paint(canvas, area);
    surface.copyTo(target, marked);
}

} // namespace NRDM
