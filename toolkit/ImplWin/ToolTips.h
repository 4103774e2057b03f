#pragma once

#include "toolkit/ImplWin/Screen.h"
#include "toolkit/ImplWin/Surface.h"

#include <string>

namespace NRDM {

struct TipWindowTraits {
    using Ref = HWND;
    static void release(Ref window) noexcept { DestroyWindow(window); }
};

/// The tips of one dialog: one window, an entry for each item. Entries are bound to rectangles of
/// the dialog's window rather than to the items' windows, so that disabled items have tips too.
class ToolTips {
public:
    explicit ToolTips(Screen& screen) : screen_(screen) {}
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    /// The tip of `item` from now on, shown while the pointer rests on `area` of `dialog`, in
    /// pixels; an empty text is none.
    void set(HWND dialog, const void* item, const std::wstring& text, const RECT& area);
    void remove(HWND dialog, const void* item) noexcept;

    /// A mouse message that any window of the dialog got; `point` is in pixels of `dialog`.
    void relay(HWND dialog, UINT message, WPARAM wide, POINT point) const;

    /// Shows the item's tip at once, or hides the one that shows.
    void show(HWND dialog, const void* item, bool shown) const;

    /// Ends the window; called before the dialog's own ends.
    void close() noexcept;

    [[nodiscard]] HWND window() const noexcept { return window_.get(); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM lengthy);
    void create(HWND dialog);
    void colour() const;

    Screen& screen_;
    HWND dialog_ = nullptr;
    WNDPROC classProcedure_ = nullptr;
    ai::Owned<GdiObjectTraits<HFONT>> font_;
    ai::Owned<TipWindowTraits> window_; ///< from the first tip on
};

} // namespace NRDM
