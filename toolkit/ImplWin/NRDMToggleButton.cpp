#include "toolkit/ImplWin/NRDMToggleButton.h"

namespace NRDM {

/// Windows asks nobody whether a button that others draw is checked; programs ask the button.
LRESULT NRDMToggleButton::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (message != BM_GETCHECK) return NRDMButton::serve(message, wide, lengthy);
    if (!view().known) return BST_INDETERMINATE;
    return view().value != 0 ? BST_CHECKED : BST_UNCHECKED;
}

FaceState NRDMToggleButton::state() const {
    FaceState state = NRDMButton::state();
    state.mixed = !view().known;
    state.on = view().known && view().value != 0;
    return state;
}

void NRDMToggleButton::paint(const Canvas& canvas, const RECT& area) {
    const FaceState now = state();
    if (view().hasPicture) {
        drawToggle(canvas, area, now);
        drawPicture(canvas, area, now);
        return;
    }
    // The focus mark needs a pixel around the box.
    RECT inner = area;
    inner.left += canvas.scale.toPixels(1);
    const RECT text = view().kind == ControlKind::CheckBox ? drawCheckBox(canvas, inner, now)
                                                           : drawRadioButton(canvas, inner, now);
    drawLine(canvas.surface, text,
             {caption(), textStyle(), canvas.scale, textColour(canvas.palette, now), Justify::Left,
              Overflow::Tighten, now.keyboardCues});
}

} // namespace NRDM
