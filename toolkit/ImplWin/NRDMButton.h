#pragma once

#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// A push button with a text or a picture. Windows' own button keeps track of mouse and Space;
/// we draw it.
class NRDMButton : public NativeItem {
public:
    NRDMButton(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

    bool notified(UINT message, WPARAM wide, LPARAM lengthy, LRESULT& answer) override;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] FaceState state() const override;
};

} // namespace NRDM
