#include "toolkit/ImplWin/NRDMSliderPopup.h"

#include <windowsx.h>

namespace NRDM {
namespace {

constexpr double kWidth = 132;
constexpr double kHeight = 26;

} // namespace

NRDMSliderPopup::NRDMSliderPopup(NativeDialog& dialog, const ItemView& view, ItemEvents& events,
                                 const RECT& anchor, std::function<void()> closed)
    : PopupWindow(dialog, std::move(closed)), view_(view), events_(events), drag_(view, events) {
    const Scale unit = dialog.scale();
    open(anchor, {unit.toPixels(kWidth), unit.toPixels(kHeight)});
}

RECT NRDMSliderPopup::inside() const {
    RECT area = client();
    InflateRect(&area, -scale().toPixels(6), 0);
    return area;
}

bool NRDMSliderPopup::key(WPARAM key) {
    if (key == VK_ESCAPE || key == VK_RETURN) {
        close();
        return true;
    }
    const std::optional<double> value = sliderKey(view_, key);
    if (!value) return false;
    const std::weak_ptr<const char> alive = watch();
    if (*value != view_.value) events_.slide(*value, Phase::Complete);
    if (!alive.expired()) repaint();
    return true;
}

LRESULT NRDMSliderPopup::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    const RECT area = client();
    const POINT point{GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)};
    const bool outside = message == WM_LBUTTONDOWN && !PtInRect(&area, point);
    // The end of a drag lets the mouse go, which is not the popup's end.
    if (message == WM_CAPTURECHANGED && (drag_.dragging() || lengthy == 0)) return 0;
    if (outside) return PopupWindow::serve(message, wide, lengthy);
    const std::weak_ptr<const char> alive = watch();
    if (!drag_.serve(handle(), message, lengthy, inside(), scale()))
        return alive.expired() ? 0 : PopupWindow::serve(message, wide, lengthy);
    if (!alive.expired()) {
        repaint();
        if (GetCapture() != handle()) SetCapture(handle());
    }
    return 0;
}

void NRDMSliderPopup::paint(const Canvas& canvas, const RECT& area) {
    drawMenuFrame(canvas, area);
    FaceState now;
    now.pressed = drag_.dragging();
    const RECT bar = inside();
    drawSlider(canvas, bar, sliderScale(view_, bar, canvas.scale).pixelOf(view_.value), now);
}

} // namespace NRDM
