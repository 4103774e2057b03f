#pragma once

#include "toolkit/ImplWin/NRDMListPopup.h"

namespace NRDM {

/// A button that shows the chosen entry and opens the list of all.
class NRDMPopupList final : public NativeItem {
public:
    NRDMPopupList(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    bool key(WPARAM key) override;
    void wheel(int steps) override;
    [[nodiscard]] bool takesWheel() const override { return hasFocus() && !popup_; }
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] std::wstring windowText() const override;

private:
    void open();
    void chooseBeside(int direction);

    std::unique_ptr<NRDMListPopup> popup_;
};

} // namespace NRDM
