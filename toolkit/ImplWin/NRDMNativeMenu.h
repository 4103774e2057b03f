#pragma once

#include "toolkit/ImplWin/NRDMListView.h"

#include "host/Owned.h"

#include <vector>

namespace NRDM {

struct MenuTraits {
    using Ref = HMENU;
    static void release(Ref menu) noexcept { DestroyMenu(menu); }
};

/// One item of a native menu, drawn as the rows of our lists are.
class NRDMNativeMenuItem {
public:
    explicit NRDMNativeMenuItem(const EntryView& view) : view_(view) {}

    void appendTo(HMENU menu, UINT command) const;
    void measure(MEASUREITEMSTRUCT& request, TextStyle style, Scale scale) const;
    void draw(const DRAWITEMSTRUCT& request, const Palette& palette, TextStyle style,
              Scale scale) const;

private:
    EntryView view_;
};

/// A menu of Windows that shows entries and answers with the position chosen.
class NRDMNativeMenu {
public:
    /// Throws `NRDMResourceException`. `back` is the colour between the entries and the frame.
    NRDMNativeMenu(const std::vector<EntryView>& entries, TextStyle style, Colour back);

    /// Opens it with its corner at `corner` of the screen and serves it until it closes; -1 when
    /// nothing was chosen. `owner` hands the messages about the menu on to `notified`.
    [[nodiscard]] int track(HWND owner, POINT corner) const;

    bool notified(const Palette& palette, Scale scale, UINT message, LPARAM lengthy) const;

    [[nodiscard]] HMENU handle() const noexcept { return menu_.get(); }

private:
    std::vector<NRDMNativeMenuItem> items_;
    TextStyle style_;
    ai::Owned<GdiObjectTraits<HBRUSH>> back_;
    ai::Owned<MenuTraits> menu_;
};

} // namespace NRDM
