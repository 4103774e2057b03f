#include "easel/paint/Picture.h"

#include "easel/core/OutputFile.h"
#include "easel/svg/Numbers.h"

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

void checkPictureSize(double width, double height) {
    const bool fits = width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide &&
                      width * height <= static_cast<double>(kMostPixels);
    if (fits) return;
    throw std::length_error("the picture would have " + svg::formatNumber(width) + " x " +
                            svg::formatNumber(height) +
                            " pixels; at most 100 million are painted, and 30,000 to a side");
}

void checkGroups(int groups, int width, int height) {
    constexpr std::int64_t kMostBytes = 2'000'000'000;
    if (std::int64_t{4} * groups * width * height > kMostBytes)
        throw std::length_error("groups that fade as one are nested too deeply to be painted at "
                                "this size; use fewer levels or a smaller drawing");
}

void writePng(const Picture& picture, const std::filesystem::path& file) {
    writeFile(file, pngText(picture));
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
