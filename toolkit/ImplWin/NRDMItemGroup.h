#pragma once

#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// A group of items: nothing to see, its members' states are the model's work.
class NRDMItemGroup final : public NativeItem {
public:
    NRDMItemGroup(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
        : NativeItem(dialog, view, events) {
        createItem(nullptr, 0);
        ShowWindow(handle(), SW_HIDE);
    }

    void changed(Aspect) override {}

protected:
    void paint(const Canvas&, const RECT&) override {}
};

} // namespace NRDM
