#include "toolkit/ImplWin/NRDMLabel.h"

namespace NRDM {
namespace {

/// ADM's style bits of a static text, the stronger first.
struct StyleRow {
    int bit;
    Overflow overflow;
};
constexpr StyleRow kStyles[] = {
    {1, Overflow::Clip},
    {4, Overflow::EndEllipsis},
    {8, Overflow::MiddleEllipsis},
};

Overflow overflowOf(int style) {
    for (const auto& [bit, overflow] : kStyles)
        if ((style & bit) != 0) return overflow;
    return Overflow::Tighten;
}

/// A text too wide goes on in the next line, as in the system's own labels, where there is one.
bool wraps(const TextLine& line, const RECT& area) {
    return area.bottom - area.top >= 2 * lineMetrics(line.style, line.scale).height &&
           textWidth(line.caption.text, line.style, line.scale) > area.right - area.left;
}

} // namespace

NRDMLabel::NRDMLabel(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events) {
    createItem(nullptr, 0);
}

LRESULT NRDMLabel::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    const LRESULT answer = NativeItem::serve(message, wide, lengthy);
    if (message == WM_LBUTTONDOWN) events().clicked();
    return answer;
}

void NRDMLabel::paint(const Canvas& canvas, const RECT& area) {
    const FaceState now = state();
    if (view().hasPicture) {
        drawPicture(canvas, area, now);
        return;
    }
    const TextLine line{caption(),       textStyle(),
                        canvas.scale,    textColour(canvas.palette, now),
                        justify(),       overflowOf(view().style),
                        now.keyboardCues};
    if (view().kind == ControlKind::MultiLineLabel || wraps(line, area)) {
        drawWrapped(canvas.surface, area, line);
        return;
    }
    RECT text = area; // a text that just fits keeps clear of the field after it
    if (line.justify == Justify::Left) text.right -= canvas.scale.toPixels(1);
    drawLine(canvas.surface, text, line);
}

} // namespace NRDM
