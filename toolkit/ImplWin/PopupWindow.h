#pragma once

#include "toolkit/ImplWin/NativeItem.h"

#include <functional>

namespace NRDM {

/// A small window that opens beside a control and goes as soon as anything else happens: a press
/// elsewhere, the loss of the focus or of the capture. The focus stays with the control, which
/// hands on the keys; the popup has the mouse captured.
class PopupWindow : public HWNDBased {
public:
    /// `closed` is called once, when the popup wants to go; it may destroy the popup.
    PopupWindow(NativeDialog& dialog, std::function<void()> closed);

    /// A key that the control got while the popup is open; true when it was one for the popup.
    virtual bool key(WPARAM key) = 0;

    void close();

protected:
    /// Opens it with `size` pixels below `anchor`, a rectangle on the screen, or above when there
    /// is no room.
    void open(const RECT& anchor, SIZE size);

    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void failed() noexcept override { dialog_.failed(); }
    [[nodiscard]] Scale scale() const override { return dialog_.scale(); }
    [[nodiscard]] const Palette& palette() const override { return dialog_.palette(); }
    [[nodiscard]] NativeDialog& dialog() const noexcept { return dialog_; }

private:
    NativeDialog& dialog_;
    std::function<void()> closed_;
};

} // namespace NRDM
