#pragma once

#include "toolkit/ImplWin/NRDMListView.h"
#include "toolkit/ImplWin/PopupWindow.h"

namespace NRDM {

/// The list that a popup list or an edit with a popup opens.
class NRDMListPopup final : public PopupWindow {
public:
    /// Opens it by `anchor` on the screen, at least as wide. `closed` is called with the entry
    /// chosen, or -1.
    NRDMListPopup(NativeDialog& dialog, const ItemView& view, TextStyle style, const RECT& anchor,
                  std::function<void(int)> closed);

    bool key(WPARAM key) override;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;

private:
    [[nodiscard]] RECT inside() const;
    [[nodiscard]] bool hasMoved(POINT point);
    void setHot(int entry);
    void finish(int entry);

    const ItemView& view_;
    ListRows rows_;
    std::shared_ptr<int> result_; ///< outlives the popup: read when it has gone
    int hot_;
    POINT pointer_{}; ///< where it was last, on the screen
    bool pressedInside_ = false;
};

} // namespace NRDM
