#pragma once

#include "toolkit/ImplWin/NRDMNativeMenu.h"
#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// A small button that opens a menu of the item's entries.
class NRDMPopupMenu final : public NativeItem {
public:
    NRDMPopupMenu(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    bool key(WPARAM key) override;
    void paint(const Canvas& canvas, const RECT& area) override;

private:
    void open();

    const NRDMNativeMenu* menu_ = nullptr; ///< while it is open
};

} // namespace NRDM
