#include "toolkit/ImplWin/NRDMNativeMenu.h"

#include "toolkit/ImplCommon/Exceptions.h"

namespace NRDM {

void NRDMNativeMenuItem::appendTo(HMENU menu, UINT command) const {
    const UINT flags = MF_OWNERDRAW | (view_.separator ? MF_SEPARATOR : 0U) |
                       (view_.enabled ? MF_ENABLED : MF_GRAYED) | (view_.checked ? MF_CHECKED : 0U);
    AppendMenuW(menu, flags, command, reinterpret_cast<LPCWSTR>(this));
}

void NRDMNativeMenuItem::measure(MEASUREITEMSTRUCT& request, TextStyle style, Scale scale) const {
    request.itemHeight = static_cast<UINT>(NRDMListViewEntry::height(view_, style, scale));
    const double text = textWidth(captionOf(toWide(view_.text)).text, style, scale);
    // The system adds the room for its own check mark, where ours stands.
    request.itemWidth = static_cast<UINT>(text) + static_cast<UINT>(scale.toPixels(28));
}

void NRDMNativeMenuItem::draw(const DRAWITEMSTRUCT& request, const Palette& palette,
                              TextStyle style, Scale scale) const {
    const RECT& place = request.rcItem;
    Surface surface({place.right - place.left, place.bottom - place.top});
    const RECT area{0, 0, surface.size().cx, surface.size().cy};
    const bool chosen = (request.itemState & ODS_SELECTED) != 0 && view_.enabled;
    NRDMListViewEntry(view_).draw({surface, palette, scale}, area, style,
                                  chosen ? RowState::Chosen : RowState::Plain, palette.menu, true);
    if (surface)
        BitBlt(request.hDC, place.left, place.top, area.right, area.bottom, surface.dc(), 0, 0,
               SRCCOPY);
}

NRDMNativeMenu::NRDMNativeMenu(const std::vector<EntryView>& entries, TextStyle style, Colour back)
    : items_(entries.begin(), entries.end()), style_(style) {
    *back_.put() = CreateSolidBrush(toColorRef(back));
    *menu_.put() = CreatePopupMenu();
    if (!back_ || !menu_) throw NRDMResourceException();
    MENUINFO look{};
    look.cbSize = sizeof(look);
    look.fMask = MIM_BACKGROUND;
    look.hbrBack = back_.get();
    SetMenuInfo(menu_.get(), &look);
    // Commands are positions plus one, because 0 is the system's word for no choice.
    for (std::size_t i = 0; i < items_.size(); ++i)
        items_[i].appendTo(menu_.get(), static_cast<UINT>(i + 1));
}

int NRDMNativeMenu::track(HWND owner, POINT corner) const {
    return static_cast<int>(TrackPopupMenu(menu_.get(), TPM_RETURNCMD | TPM_NONOTIFY, corner.x,
                                           corner.y, 0, owner, nullptr)) -
           1;
}

bool NRDMNativeMenu::notified(const Palette& palette, Scale scale, UINT message,
                              LPARAM lengthy) const {
    if (message == WM_MEASUREITEM) {
        auto& request = *reinterpret_cast<MEASUREITEMSTRUCT*>(lengthy);
        if (request.CtlType != ODT_MENU) return false;
        reinterpret_cast<const NRDMNativeMenuItem*>(request.itemData)
            ->measure(request, style_, scale);
        return true;
    }
    if (message == WM_DRAWITEM) {
        const auto& request = *reinterpret_cast<const DRAWITEMSTRUCT*>(lengthy);
        if (request.CtlType != ODT_MENU) return false;
        reinterpret_cast<const NRDMNativeMenuItem*>(request.itemData)
            ->draw(request, palette, style_, scale);
        return true;
    }
    return false;
}

} // namespace NRDM
