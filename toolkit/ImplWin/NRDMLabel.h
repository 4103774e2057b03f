#pragma once

#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// A text or picture to look at. A click on it is reported: it may lead to the field beside it.
class NRDMLabel final : public NativeItem {
public:
    NRDMLabel(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] bool reactsToPointer() const override { return view().pictures.rollover != 0; }
};

} // namespace NRDM
