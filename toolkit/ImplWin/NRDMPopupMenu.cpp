#include "toolkit/ImplWin/NRDMPopupMenu.h"

namespace NRDM {
namespace {

/// ADM's style: the menu's arrow points down; without it to the right, where the menu then opens.
constexpr int kArrowDown = 1;

} // namespace

NRDMPopupMenu::NRDMPopupMenu(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events) {
    createItem(nullptr, WS_TABSTOP);
}

void NRDMPopupMenu::open() {
    if (menu_ != nullptr || view().entries.empty()) return;
    const std::weak_ptr<const char> alive = watch();
    const NRDMNativeMenu menu(view().entries, textStyle(), palette().menu);
    menu_ = &menu;
    repaint();
    RECT place{};
    GetWindowRect(handle(), &place);
    const bool down = (view().style & kArrowDown) != 0;
    const int entry = menu.track(handle(), down ? POINT{place.left, place.bottom}
                                                : POINT{place.right, place.top});
    if (alive.expired()) return;
    menu_ = nullptr;
    repaint();
    if (entry >= 0) events().choose(entry);
}

LRESULT NRDMPopupMenu::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    if (menu_ != nullptr && menu_->notified(palette(), scale(), message, lengthy)) return TRUE;
    const std::weak_ptr<const char> alive = watch();
    const LRESULT answer = NativeItem::serve(message, wide, lengthy);
    if (message == WM_LBUTTONDOWN && !alive.expired()) {
        SetFocus(handle());
        if (!alive.expired()) open();
    }
    // Not when it goes down: the menu would get the blank that follows, and close.
    if (message == WM_KEYUP && wide == VK_SPACE && !alive.expired()) open();
    return answer;
}

bool NRDMPopupMenu::key(WPARAM key) {
    if (key == VK_F4 || key == VK_DOWN) open();
    return key == VK_F4 || key == VK_DOWN || key == VK_SPACE;
}

void NRDMPopupMenu::paint(const Canvas& canvas, const RECT& area) {
    FaceState now = state();
    now.pressed = menu_ != nullptr;
    const Arrow arrow = (view().style & kArrowDown) != 0 ? Arrow::Down : Arrow::Right;
    if (view().text.empty() && !view().hasPicture) {
        drawToggle(canvas, area, now);
        drawArrow(canvas, area, arrow, textColour(canvas.palette, now));
        return;
    }
    const RECT text = drawPopup(canvas, area, arrow, now);
    if (view().hasPicture)
        drawPicture(canvas, text, now);
    else
        drawLine(canvas.surface, text,
                 {caption(), textStyle(), canvas.scale, textColour(canvas.palette, now),
                  Justify::Left, Overflow::EndEllipsis, now.keyboardCues});
}

} // namespace NRDM
