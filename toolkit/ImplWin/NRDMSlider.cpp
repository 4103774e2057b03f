#include "toolkit/ImplWin/NRDMSlider.h"

#include <windowsx.h>

#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace NRDM {

SliderScale sliderScale(const ItemView& view, const RECT& area, Scale scale) {
    const int radius = thumbRadius(scale);
    return {view.lowest, view.highest, static_cast<int>(area.left) + radius,
            static_cast<int>(area.right) - radius};
}

void SliderDrag::slideTo(double value, Phase phase) {
    const double within = std::clamp(value, view_.lowest, std::max(view_.lowest, view_.highest));
    if (within != view_.value || phase == Phase::Complete) events_.slide(within, phase);
}

bool SliderDrag::serve(HWND window, UINT message, LPARAM lengthy, const RECT& area, Scale scale) {
    const SliderScale bar = sliderScale(view_, area, scale);
    const int x = GET_X_LPARAM(lengthy);
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        const int thumb = bar.pixelOf(view_.value);
        if (std::abs(x - thumb) > thumbRadius(scale)) {
            const double step = x > thumb ? view_.largeIncrement : -view_.largeIncrement;
            slideTo(view_.value + step, Phase::Complete);
            return true;
        }
        SetCapture(window);
        grip_ = x - thumb;
        return true;
    }
    case WM_MOUSEMOVE:
        if (!grip_) return false;
        slideTo(bar.valueAt(x - *grip_), Phase::InProgress);
        return true;
    case WM_LBUTTONUP: {
        if (!grip_) return false;
        const double value = bar.valueAt(x - *grip_);
        grip_.reset();
        ReleaseCapture();
        slideTo(value, Phase::Complete);
        return true;
    }
    case WM_CAPTURECHANGED: // taken away in mid-drag: what was reached stays
        if (!grip_) return false;
        grip_.reset();
        slideTo(view_.value, Phase::Complete);
        return true;
    default:
        return false;
    }
}

std::optional<double> sliderKey(const ItemView& view, WPARAM key) {
    const auto within = [&](double value) {
        return std::clamp(value, view.lowest, std::max(view.lowest, view.highest));
    };
    switch (key) {
    case VK_LEFT:
    case VK_DOWN:
        return within(view.value - view.smallIncrement);
    case VK_RIGHT:
    case VK_UP:
        return within(view.value + view.smallIncrement);
    case VK_NEXT:
        return within(view.value - view.largeIncrement);
    case VK_PRIOR:
        return within(view.value + view.largeIncrement);
    case VK_HOME:
        return view.lowest;
    case VK_END:
        return view.highest;
    default:
        return std::nullopt;
    }
}

NRDMSlider::NRDMSlider(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events), drag_(view, events) {
    createItem(nullptr, WS_TABSTOP);
}

/// What other programs, such as screen readers, ask of sliders, as of Windows' own. Those know
/// whole numbers only.
std::optional<LRESULT> NRDMSlider::tell(UINT message, LPARAM lengthy) const {
    const RECT area = client();
    const SliderScale bar = sliderScale(view(), area, scale());
    const auto answer = [&](LONG left, LONG right) {
        *reinterpret_cast<RECT*>(lengthy) = {left, area.top, right, area.bottom};
        return LRESULT{0};
    };
    switch (message) {
    case TBM_GETPOS:
        return std::lround(view().value);
    case TBM_GETRANGEMIN:
        return std::lround(view().lowest);
    case TBM_GETRANGEMAX:
        return std::lround(view().highest);
    case TBM_GETCHANNELRECT:
        return answer(bar.left, bar.right);
    case TBM_GETTHUMBRECT: {
        const int middle = bar.pixelOf(view().value);
        return answer(middle - thumbRadius(scale()), middle + thumbRadius(scale()));
    }
    default:
        return std::nullopt;
    }
}

LRESULT NRDMSlider::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (const auto told = tell(message, lengthy)) return *told;
    const std::weak_ptr<const char> alive = watch();
    if (message == WM_LBUTTONDOWN) {
        SetFocus(handle());
        if (alive.expired()) return 0;
    }
    const LRESULT answer = NativeItem::serve(message, wide, lengthy);
    if (alive.expired() || !drag_.serve(handle(), message, lengthy, client(), scale()) ||
        alive.expired() || message == WM_MOUSEMOVE)
        return answer;
    repaint(); // pressed or no longer
    if (!drag_.dragging()) dialog().returnKeyboard();
    return answer;
}

bool NRDMSlider::key(WPARAM key) {
    const std::optional<double> value = sliderKey(view(), key);
    if (!value) return false;
    if (*value != view().value) events().slide(*value, Phase::Complete);
    return true;
}

void NRDMSlider::wheel(int steps) {
    const double value =
        std::clamp(view().value + steps * view().smallIncrement, view().lowest, view().highest);
    if (value != view().value) events().slide(value, Phase::Complete);
}

void NRDMSlider::paint(const Canvas& canvas, const RECT& area) {
    FaceState now = state();
    now.pressed = drag_.dragging();
    drawSlider(canvas, area, sliderScale(view(), area, canvas.scale).pixelOf(view().value), now);
}

} // namespace NRDM
