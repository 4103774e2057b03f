#pragma once

#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// An item that its owner draws and tracks.
class NRDMUserType final : public NativeItem {
public:
    NRDMUserType(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] bool reactsToPointer() const override { return false; }
};

} // namespace NRDM
