#include "toolkit/ImplWin/Screen.h"

#include "toolkit/ImplWin/HWNDBased.h"

namespace NRDM {

Screen::Screen(const Theme& theme, PictureSource source)
    : windowClass(HWNDBased::procedure), palette(theme), pictures(std::move(source)) {}

} // namespace NRDM
