#pragma once

#include "toolkit/ImplWin/NRDMButton.h"

namespace NRDM {

/// A check box or radio button with a text, or a picture that stays down while it is on.
class NRDMToggleButton final : public NRDMButton {
public:
    using NRDMButton::NRDMButton;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] FaceState state() const override;
};

} // namespace NRDM
