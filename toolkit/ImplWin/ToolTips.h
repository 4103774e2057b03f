#pragma once

#include "toolkit/ImplWin/Surface.h"

#include <string>

namespace NRDM {

struct TipWindowTraits {
    using Ref = HWND;
    static void release(Ref window) noexcept { DestroyWindow(window); }
};

class NativeDialog;

/// The tips of one dialog: one window, an entry for each item. Entries are bound to rectangles of
/// the dialog's window rather than to the items' windows, so that disabled items have tips too.
class ToolTips {
public:
    explicit ToolTips(const NativeDialog& dialog) : dialog_(dialog) {}
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    /// The tip of `item` from now on, shown while the pointer rests on `area` of the dialog, in
    /// pixels; an empty text is none.
    void set(const void* item, const std::wstring& text, const RECT& area);
    void remove(const void* item) noexcept;

    /// A mouse message that any window of the dialog got; `point` is in pixels of the dialog.
    void relay(UINT message, WPARAM wide, POINT point) const;

    /// Shows the item's tip at once, or hides the one that shows.
    void show(const void* item, bool shown) const;

    /// Ends the window, and forgets all tips: before the dialog's own ends, and when its scale
    /// changes. The next tip makes another.
    void close() noexcept;

    [[nodiscard]] HWND window() const noexcept { return window_.get(); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM lengthy);
    void create();
    void colour() const;

    const NativeDialog& dialog_;
    WNDPROC classProcedure_ = nullptr;
    ai::Owned<GdiObjectTraits<HFONT>> font_;
    ai::Owned<TipWindowTraits> window_; ///< from the first tip on
};

} // namespace NRDM
