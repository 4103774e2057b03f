#include "toolkit/ImplWin/CoADMWindowDrawer.h"

namespace NRDM {

ShownPart::ShownPart(HDC target, const RECT& area)
    : target_(target), area_(area), pixels_({area.right - area.left, area.bottom - area.top}) {
    const auto [width, height] = pixels_.size();
    if (pixels_) BitBlt(pixels_.dc(), 0, 0, width, height, target_, area_.left, area_.top, SRCCOPY);
}

ShownPart::~ShownPart() {
    const auto [width, height] = pixels_.size();
    if (pixels_) BitBlt(target_, area_.left, area_.top, width, height, pixels_.dc(), 0, 0, SRCCOPY);
}

CoADMWindowDrawer::CoADMWindowDrawer(Screen& screen, HDC target, const RECT& area)
    : ShownPart(target, area), CoADMDrawer(screen, pixels_, Scale{1.0}, /*inPanel*/ false) {}

} // namespace NRDM
