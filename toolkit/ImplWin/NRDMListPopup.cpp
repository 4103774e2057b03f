#include "toolkit/ImplWin/NRDMListPopup.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

constexpr double kHighest = 320;
constexpr double kEdge = 4;

} // namespace

NRDMListPopup::NRDMListPopup(NativeDialog& dialog, const ItemView& view, TextStyle style,
                             const RECT& anchor, std::function<void(int)> closed)
    : PopupWindow(dialog,
                  [this, closed = std::move(closed)] {
                      const int entry = *result_;
                      closed(entry);
                  }),
      view_(view), rows_(view, style), result_(std::make_shared<int>(-1)), hot_(view.chosen) {
    const Scale unit = dialog.scale();
    const SIZE natural = rows_.naturalSize(unit);
    const int edge = unit.toPixels(kEdge);
    const LONG height = std::min<LONG>(natural.cy, unit.toPixels(kHighest)) + 2 * edge;
    open(anchor, {std::max<LONG>(natural.cx + 2, anchor.right - anchor.left), height});
    rows_.scrollTo(hot_, inside(), unit);
    GetCursorPos(&pointer_);
}

/// Windows tells a move whenever a window appears or changes below a pointer at rest, which is to
/// leave a choice by keys alone.
bool NRDMListPopup::hasMoved(POINT point) {
    ClientToScreen(handle(), &point);
    const bool moved = point.x != pointer_.x || point.y != pointer_.y;
    pointer_ = point;
    return moved;
}

RECT NRDMListPopup::inside() const {
    RECT area = client();
    InflateRect(&area, -scale().line(), -scale().toPixels(kEdge));
    return area;
}

void NRDMListPopup::setHot(int entry) {
    if (entry == hot_) return;
    for (const int changed : {hot_, entry})
        if (changed >= 0) repaint(rows_.rowOf(changed, inside(), scale()));
    hot_ = entry;
}

void NRDMListPopup::finish(int entry) {
    *result_ = entry;
    close();
}

bool NRDMListPopup::key(WPARAM key) {
    const int count = static_cast<int>(view_.entries.size());
    std::optional<int> entry;
    switch (key) {
    case VK_ESCAPE:
        finish(-1);
        return true;
    case VK_RETURN:
    case VK_SPACE:
        finish(hot_);
        return true;
    case VK_UP:
        entry = rows_.next(hot_ < 0 ? count : hot_, -1);
        break;
    case VK_DOWN:
        entry = rows_.next(hot_, 1);
        break;
    case VK_HOME:
        entry = rows_.next(-1, 1);
        break;
    case VK_END:
        entry = rows_.next(count, -1);
        break;
    default:
        if (key < '0' || key > 'Z') return false;
        entry = rows_.beginningWith(static_cast<wchar_t>(key), hot_);
    }
    if (!entry) return true;
    setHot(*entry);
    const int before = static_cast<int>(rows_.rowOf(0, inside(), scale()).top);
    rows_.scrollTo(*entry, inside(), scale());
    if (rows_.rowOf(0, inside(), scale()).top != before) repaint();
    return true;
}

LRESULT NRDMListPopup::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (const auto told = rows_.tell(message, wide, lengthy, inside(), scale())) return *told;
    const POINT point{GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)};
    switch (message) {
    case WM_MOUSEMOVE:
        if (!hasMoved(point)) return 0;
        if (const auto entry = rows_.entryAt(point, inside(), scale())) {
            pressedInside_ = pressedInside_ || (wide & MK_LBUTTON) != 0;
            setHot(*entry);
        }
        return 0;
    case WM_LBUTTONUP:
        // The release of the press that opened the list is none of a choice's, unless the pointer
        // was dragged onto an entry.
        if (const auto entry = rows_.entryAt(point, inside(), scale()); entry && pressedInside_)
            finish(*entry);
        return 0;
    case WM_MOUSEWHEEL:
        if (rows_.scrollBy(-GET_WHEEL_DELTA_WPARAM(wide) * scale().toPixels(36) / WHEEL_DELTA,
                           inside(), scale()))
            repaint();
        return 0;
    case WM_LBUTTONDOWN: {
        const RECT area = client();
        pressedInside_ = PtInRect(&area, point) != FALSE;
        break;
    }
    default:
        break;
    }
    return PopupWindow::serve(message, wide, lengthy);
}

void NRDMListPopup::paint(const Canvas& canvas, const RECT& area) {
    drawMenuFrame(canvas, area);
    rows_.draw(canvas, inside(), -1, hot_, canvas.palette.menu);
}

} // namespace NRDM
