#pragma once

#include "toolkit/ImplWin/CoADMDrawer.h"

namespace NRDM {

/// What a window, or any device context, shows in `area`, and shows again when this goes.
class ShownPart {
public:
    ShownPart(HDC target, const RECT& area);
    ~ShownPart();
    ShownPart(const ShownPart&) = delete;
    ShownPart& operator=(const ShownPart&) = delete;

protected:
    HDC target_;
    RECT area_;
    Surface pixels_;
};

/// A drawer for a device context of the client's, between two paints of its window: it begins with
/// what is shown there, and what is drawn appears when the drawer goes. Units are pixels.
class CoADMWindowDrawer final : ShownPart, public CoADMDrawer {
public:
    CoADMWindowDrawer(Screen& screen, HDC target, const RECT& area);
};

} // namespace NRDM
