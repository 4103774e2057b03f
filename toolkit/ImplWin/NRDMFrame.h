#pragma once

#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// A frame behind other items, with or without a title, or a line that separates them. The mouse
/// goes through it.
class NRDMFrame final : public NativeItem {
public:
    NRDMFrame(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] bool reactsToPointer() const override { return false; }
};

} // namespace NRDM
