#include "toolkit/ImplWin/CoADMImage.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <algorithm>

namespace NRDM {

CoADMImage::CoADMImage(Screen& screen, Extent size)
    : screen_(screen), size_(size), surface_({size.width, size.height}) {}

CoADMDrawer* CoADMImage::beginDrawing() {
    if (!drawer_)
        drawer_ = std::make_unique<CoADMDrawer>(screen_, surface_, Scale{1.0}, /*inPanel*/ false);
    return drawer_.get();
}

CoADMImage* Images::make(Screen& screen, Extent size) {
    if (size.width <= 0 || size.height <= 0) throw NRDMParameterException();
    return images_.emplace_back(std::make_unique<CoADMImage>(screen, size)).get();
}

void Images::drop(CoADMImage& image) {
    const auto found = std::ranges::find(images_, &image, &std::unique_ptr<CoADMImage>::get);
    if (found == images_.end()) throw NRDMParameterException();
    images_.erase(found);
}

} // namespace NRDM
