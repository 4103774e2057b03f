#include "tests/pictures/PictureSymmetry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace facetta::tests {
namespace {

constexpr int kChannels = 4;

/// Shorter runs of odd pixels along an axis are the tips of shapes that point along it.
constexpr int kShortestSeam = 40;

/// Pixels. Where axes are closer, what lies beside one may belong to the next.
constexpr double kAxesApart = 24.0;

int channel(std::uint32_t pixel, int index) {
    return static_cast<int>(pixel >> (8 * index) & 0xFFU);
}

std::size_t indexOf(const Picture& picture, int x, int y) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
           static_cast<std::size_t>(x);
}

std::uint32_t pixelAt(const Picture& picture, int x, int y) {
    return picture.pixels[indexOf(picture, x, y)];
}

bool inside(const Picture& picture, int x, int y, int margin) {
    return x >= margin && y >= margin && x < picture.width - margin && y < picture.height - margin;
}

/// The least and the greatest value of each channel in the 3 x 3 neighbourhood of every pixel.
struct Ranges {
    std::vector<std::array<std::uint8_t, kChannels>> least;
    std::vector<std::array<std::uint8_t, kChannels>> most;
};

Ranges rangesOf(const Picture& picture) {
    Ranges ranges;
    ranges.least.resize(picture.pixels.size());
    ranges.most.resize(picture.pixels.size());
    for (int y = 1; y + 1 < picture.height; ++y) {
        for (int x = 1; x + 1 < picture.width; ++x) {
            std::array<std::uint8_t, kChannels> least{255, 255, 255, 255};
            std::array<std::uint8_t, kChannels> most{};
            for (int i = 0; i < 9; ++i) {
                const std::uint32_t pixel = pixelAt(picture, x - 1 + i % 3, y - 1 + i / 3);
                for (int index = 0; index < kChannels; ++index) {
                    const auto value = static_cast<std::uint8_t>(channel(pixel, index));
                    const auto at = static_cast<std::size_t>(index);
                    least[at] = std::min(least[at], value);
                    most[at] = std::max(most[at], value);
                }
            }
            ranges.least[indexOf(picture, x, y)] = least;
            ranges.most[indexOf(picture, x, y)] = most;
        }
    }
    return ranges;
}

/// Whether `pixel` is what antialiasing may have made of what stands around the pixel at `index`.
bool explainedBy(const Ranges& ranges, std::size_t index, std::uint32_t pixel, int tolerance) {
    for (int i = 0; i < kChannels; ++i) {
        const int value = channel(pixel, i);
        const auto at = static_cast<std::size_t>(i);
        if (value < ranges.least[index][at] - tolerance ||
            value > ranges.most[index][at] + tolerance)
            return false;
    }
    return true;
}

/// A mirroring or turning of offsets from the centre, y down.
struct Image {
    double xx, xy, yx, yy;
};

/// Every mirroring and turning of few axes; of many axes some, spread evenly.
std::vector<Image> imagesOf(const PictureAxes& axes) {
    constexpr int kMostAxes = 12;
    std::vector<Image> images;
    const int stride = (axes.axisCount + kMostAxes - 1) / kMostAxes;
    for (int k = 0; k < axes.axisCount; k += stride) {
        const double axis = axes.angle + k * std::numbers::pi / axes.axisCount;
        // Across the line at `axis`, with y counted downwards.
        images.push_back(
            {std::cos(2 * axis), -std::sin(2 * axis), -std::sin(2 * axis), -std::cos(2 * axis)});
        const double turn = (k + 1) * 2 * std::numbers::pi / axes.axisCount;
        images.push_back({std::cos(turn), -std::sin(turn), std::sin(turn), std::cos(turn)});
    }
    return images;
}

void note(Mismatch& mismatch, bool right, int x, int y) {
    ++mismatch.compared;
    if (right) return;
    if (mismatch.wrong == 0) {
        mismatch.x = x;
        mismatch.y = y;
    }
    ++mismatch.wrong;
}

int rounded(double value) { return static_cast<int>(std::lround(value)); }

double radiusInside(const Picture& picture, const PictureAxes& axes) {
    return std::min({axes.centreX, axes.centreY, picture.width - axes.centreX,
                     picture.height - axes.centreY}) -
           3.0;
}

bool near(std::uint32_t a, std::uint32_t b, int tolerance) {
    for (int index = 0; index < kChannels; ++index)
        if (std::abs(channel(a, index) - channel(b, index)) > tolerance) return false;
    return true;
}

} // namespace

Mismatch compareWithImages(const Picture& picture, const PictureAxes& axes, int tolerance) {
    Mismatch mismatch;
    const double radius = radiusInside(picture, axes);
    const Ranges ranges = rangesOf(picture);
    for (const Image& image : imagesOf(axes)) {
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                // The middle of the pixel is what is mirrored.
                const double dx = x + 0.5 - axes.centreX;
                const double dy = y + 0.5 - axes.centreY;
                if (std::hypot(dx, dy) > radius) continue;
                const int imageX = rounded(axes.centreX + image.xx * dx + image.xy * dy - 0.5);
                const int imageY = rounded(axes.centreY + image.yx * dx + image.yy * dy - 0.5);
                if (!inside(picture, imageX, imageY, 1)) continue;
                const std::size_t there = indexOf(picture, imageX, imageY);
                note(mismatch, explainedBy(ranges, there, pixelAt(picture, x, y), tolerance), x, y);
            }
        }
    }
    return mismatch;
}

Mismatch findSeams(const Picture& picture, const PictureAxes& axes, int tolerance) {
    Mismatch mismatch;
    const double radius = radiusInside(picture, axes);
    const int nearest = std::max(6, rounded(kAxesApart * axes.axisCount / std::numbers::pi));
    for (int k = 0; k < 2 * axes.axisCount; ++k) {
        const double direction = axes.angle + k * std::numbers::pi / axes.axisCount;
        const double alongX = std::cos(direction);
        const double alongY = -std::sin(direction);
        int run = 0;
        for (int distance = nearest; distance < radius; ++distance) {
            std::array<std::uint32_t, 9> across{};
            int x = 0;
            int y = 0;
            bool complete = true;
            for (std::size_t i = 0; i < across.size(); ++i) {
                const int offset = static_cast<int>(i) - 4;
                x = rounded(axes.centreX + alongX * distance - alongY * offset - 0.5);
                y = rounded(axes.centreY + alongY * distance + alongX * offset - 0.5);
                complete = complete && inside(picture, x, y, 0);
                if (complete) across[i] = pixelAt(picture, x, y);
            }
            const bool flat = complete && near(across[0], across[1], tolerance) &&
                              near(across[0], across[7], tolerance) &&
                              near(across[0], across[8], tolerance);
            if (!flat) continue;
            const bool clean = std::all_of(across.begin() + 3, across.begin() + 6, [&](auto pixel) {
                return near(pixel, across[0], tolerance);
            });
            run = clean ? 0 : run + 1;
            note(mismatch, run < kShortestSeam, x, y);
        }
    }
    return mismatch;
}

} // namespace facetta::tests
