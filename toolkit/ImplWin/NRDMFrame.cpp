#include "toolkit/ImplWin/NRDMFrame.h"

#include <cmath>

namespace NRDM {

NRDMFrame::NRDMFrame(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events) {
    createItem(nullptr, 0);
    SetWindowPos(handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

LRESULT NRDMFrame::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (message == WM_NCHITTEST) return HTTRANSPARENT;
    return NativeItem::serve(message, wide, lengthy);
}

void NRDMFrame::paint(const Canvas& canvas, const RECT& area) {
    const Caption title = caption();
    RECT frame = area;
    if (title.text.empty()) {
        drawFrame(canvas, frame, view().style);
        return;
    }
    const int height = static_cast<int>(std::ceil(lineMetrics(textStyle(), canvas.scale).height));
    const int indent = canvas.scale.toPixels(8);
    const int gap = canvas.scale.toPixels(4);
    frame.top += height / 2;
    drawFrame(canvas, frame, view().style);
    const int width = static_cast<int>(std::ceil(textWidth(title.text, textStyle(), canvas.scale)));
    const RECT text{area.left + indent, area.top,
                    std::min(area.left + indent + width + 1, area.right - indent),
                    area.top + height};
    RECT behind = text;
    InflateRect(&behind, gap, 0);
    drawBackground(canvas, behind);
    const FaceState now = state();
    drawLine(canvas.surface, text,
             {title, textStyle(), canvas.scale, textColour(canvas.palette, now), Justify::Left,
              Overflow::EndEllipsis, now.keyboardCues});
}

} // namespace NRDM
