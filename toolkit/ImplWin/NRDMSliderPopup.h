#pragma once

#include "toolkit/ImplWin/NRDMSlider.h"
#include "toolkit/ImplWin/PopupWindow.h"

namespace NRDM {

/// The slider that opens beside a field.
class NRDMSliderPopup final : public PopupWindow {
public:
    NRDMSliderPopup(NativeDialog& dialog, const ItemView& view, ItemEvents& events,
                    const RECT& anchor, std::function<void()> closed);

    bool key(WPARAM key) override;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;

private:
    [[nodiscard]] RECT inside() const;

    const ItemView& view_;
    ItemEvents& events_;
    SliderDrag drag_;
};

} // namespace NRDM
