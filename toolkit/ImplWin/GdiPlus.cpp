#include "toolkit/ImplWin/GdiPlus.h"

#include "toolkit/ImplCommon/Exceptions.h"

namespace NRDM {

GdiPlusSession::GdiPlusSession() {
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) != Gdiplus::Ok)
        throw NRDMResourceException();
}

} // namespace NRDM
