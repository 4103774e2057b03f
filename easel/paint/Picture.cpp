#include "easel/paint/Picture.h"

#include <cstdlib>
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

double difference(const Picture& a, const Picture& b) {
    if (a.width != b.width || a.height != b.height) return 1.0;
    std::size_t differing = 0;
    for (std::size_t pixel = 0; pixel < a.pixels.size(); pixel += 4) {
        const auto apart = [&](std::size_t channel) {
            const int alphas[] = {a.pixels[pixel + 3], b.pixels[pixel + 3]};
            const int ofA = a.pixels[pixel + channel] * alphas[0] / 255;
            const int ofB = b.pixels[pixel + channel] * alphas[1] / 255;
            return std::abs(ofA - ofB) > kVisibleDifference ||
                   std::abs(alphas[0] - alphas[1]) > kVisibleDifference;
        };
        if (apart(0) || apart(1) || apart(2)) ++differing;
    }
    return static_cast<double>(4 * differing) / static_cast<double>(a.pixels.size());
}

} // namespace easel::paint
