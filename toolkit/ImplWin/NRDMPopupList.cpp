#include "toolkit/ImplWin/NRDMPopupList.h"

namespace NRDM {

NRDMPopupList::NRDMPopupList(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events) {
    createItem(nullptr, WS_TABSTOP);
}

void NRDMPopupList::open() {
    if (popup_ || view().entries.empty()) return;
    RECT anchor{};
    GetWindowRect(handle(), &anchor);
    popup_ =
        std::make_unique<NRDMListPopup>(dialog(), view(), textStyle(), anchor, [this](int entry) {
            popup_.reset();
            repaint();
            if (entry >= 0 && entry != view().chosen) events().choose(entry);
        });
    repaint();
}

void NRDMPopupList::chooseBeside(int direction) {
    const auto entry = ListRows(view(), textStyle()).next(view().chosen, direction);
    if (entry) events().choose(*entry);
}

LRESULT NRDMPopupList::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    const std::weak_ptr<const char> alive = watch();
    const LRESULT answer = NativeItem::serve(message, wide, lengthy);
    if (alive.expired()) return answer;
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
        SetFocus(handle());
        if (!alive.expired()) open();
    } else if ((message == WM_KILLFOCUS || message == WM_CANCELMODE) && popup_) {
        popup_->close();
    }
    return answer;
}

bool NRDMPopupList::key(WPARAM key) {
    if (popup_) return popup_->key(key);
    switch (key) {
    case VK_SPACE:
    case VK_F4:
        open();
        return true;
    case VK_UP:
    case VK_LEFT:
        chooseBeside(-1);
        return true;
    case VK_DOWN:
    case VK_RIGHT:
        chooseBeside(1);
        return true;
    default:
        break;
    }
    if (key < '0' || key > 'Z') return false;
    const auto entry =
        ListRows(view(), textStyle()).beginningWith(static_cast<wchar_t>(key), view().chosen);
    if (entry && *entry != view().chosen) events().choose(*entry);
    return entry.has_value();
}

void NRDMPopupList::wheel(int steps) { chooseBeside(steps > 0 ? -1 : 1); }

std::wstring NRDMPopupList::windowText() const {
    const auto chosen = static_cast<std::size_t>(view().chosen);
    if (view().chosen < 0 || chosen >= view().entries.size() || !view().known) return {};
    return captionOf(toWide(view().entries[chosen].text)).text;
}

void NRDMPopupList::paint(const Canvas& canvas, const RECT& area) {
    FaceState now = state();
    now.pressed = popup_ != nullptr;
    const RECT text = drawPopup(canvas, area, Arrow::Down, now);
    drawLine(canvas.surface, text,
             {{windowText(), -1},
              textStyle(),
              canvas.scale,
              textColour(canvas.palette, now),
              Justify::Left,
              Overflow::EndEllipsis,
              false});
}

} // namespace NRDM
