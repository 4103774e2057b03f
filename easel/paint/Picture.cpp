#include "easel/paint/Picture.h"

#include <stdexcept>

namespace easel::paint {

Colour Picture::at(int x, int y) const {
    const auto pixel =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    const auto channel = [&](std::size_t i) {
        return static_cast<float>(pixels.at(4 * pixel + i)) / 255.0F;
    };
    return {channel(0), channel(1), channel(2), channel(3)};
}

void checkPictureSize(int width, int height) {
    const bool fits = width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide &&
                      static_cast<std::int64_t>(width) * height <= kMostPixels;
    if (!fits) throw std::length_error("the picture would be too large; use a smaller scale");
}

} // namespace easel::paint
