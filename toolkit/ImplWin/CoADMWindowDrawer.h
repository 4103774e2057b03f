#pragma once

#include "toolkit/ImplWin/CoADMDrawer.h"

namespace NRDM {

/// A drawer for a window, between two paints of it: what is drawn appears when the drawer goes.
class CoADMWindowDrawer {
public:
    CoADMWindowDrawer(Screen& screen, HWND window, bool inPanel);
    ~CoADMWindowDrawer();
    CoADMWindowDrawer(const CoADMWindowDrawer&) = delete;
    CoADMWindowDrawer& operator=(const CoADMWindowDrawer&) = delete;

    [[nodiscard]] CoADMDrawer& drawer() noexcept { return drawer_; }

private:
    HWND window_;
    RECT area_;
    Surface surface_;
    CoADMDrawer drawer_;
};

} // namespace NRDM
