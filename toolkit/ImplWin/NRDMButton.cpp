#include "toolkit/ImplWin/NRDMButton.h"

namespace NRDM {

NRDMButton::NRDMButton(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events) {
    createItem(L"BUTTON", BS_OWNERDRAW | WS_TABSTOP);
}

bool NRDMButton::notified(UINT message, WPARAM wide, LPARAM lengthy, LRESULT& answer) {
    if (message == WM_DRAWITEM) { // the button paints itself at once when it is pressed
        const auto& request = *reinterpret_cast<const DRAWITEMSTRUCT*>(lengthy);
        paintOn(request.hDC, client());
        answer = TRUE;
        return true;
    }
    if (message != WM_COMMAND || HIWORD(wide) != BN_CLICKED) return false;
    answer = 0;
    events().clicked();
    return true;
}

LRESULT NRDMButton::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN; // a quick second click is a click
    const std::weak_ptr<const char> alive = watch();
    if (message == WM_LBUTTONDOWN) events().pressed();
    return alive.expired() ? 0 : NativeItem::serve(message, wide, lengthy);
}

FaceState NRDMButton::state() const {
    FaceState state = NativeItem::state();
    state.pressed = (SendMessageW(handle(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
    return state;
}

void NRDMButton::paint(const Canvas& canvas, const RECT& area) {
    const FaceState now = state();
    if (view().hasPicture) {
        drawToggle(canvas, area, now);
        drawPicture(canvas, area, now);
        return;
    }
    drawButton(canvas, area, now);
    RECT text = area;
    InflateRect(&text, -canvas.scale.toPixels(6), 0);
    const bool onAccent = now.isDefault && now.enabled;
    drawLine(canvas.surface, text,
             {caption(), textStyle(), canvas.scale,
              onAccent ? canvas.palette.onAccent : textColour(canvas.palette, now), Justify::Centre,
              Overflow::Tighten, now.keyboardCues});
}

} // namespace NRDM
