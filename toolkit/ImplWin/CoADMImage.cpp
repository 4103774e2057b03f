#include "toolkit/ImplWin/CoADMImage.h"

#include "toolkit/ImplCommon/Exceptions.h"

namespace NRDM {

CoADMImage::CoADMImage(Screen& screen, Extent size)
    : screen_(screen), size_(size), surface_({size.width, size.height}) {
    if (size.width <= 0 || size.height <= 0) throw NRDMParameterException();
}

CoADMDrawer* CoADMImage::beginDrawing() {
    if (!drawer_)
        drawer_ = std::make_unique<CoADMDrawer>(screen_, surface_, Scale{1.0}, /*inPanel*/ false);
    return drawer_.get();
}

} // namespace NRDM
