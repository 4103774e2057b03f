#include "toolkit/ImplCommon/SliderScale.h"

#include <algorithm>
#include <cmath>

namespace NRDM {

int SliderScale::pixelOf(double value) const {
    if (!(highest > lowest)) return left;
    const double part = std::clamp((value - lowest) / (highest - lowest), 0.0, 1.0);
    return left + static_cast<int>(std::lround(part * (right - left)));
}

double SliderScale::valueAt(int pixel) const {
    if (right <= left) return lowest;
    const double part = std::clamp(static_cast<double>(pixel - left) / (right - left), 0.0, 1.0);
    return lowest + part * (highest - lowest);
}

} // namespace NRDM
