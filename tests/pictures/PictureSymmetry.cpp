#include "tests/pictures/PictureSymmetry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace facetta::tests {
namespace {

constexpr int kChannels = 4;

/// Shorter runs of odd pixels along an axis are the tips of shapes that point along it.
constexpr int kShortestSeam = 12;

int channel(std::uint32_t pixel, int index) {
    return static_cast<int>(pixel >> (8 * index) & 0xFFU);
}

std::uint32_t pixelAt(const Picture& picture, int x, int y) {
    return picture.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                          static_cast<std::size_t>(x)];
}

bool inside(const Picture& picture, int x, int y, int margin) {
    return x >= margin && y >= margin && x < picture.width - margin && y < picture.height - margin;
}

/// Whether `pixel` is what antialiasing may have made of what stands around (x, y).
bool explainedBy(const Picture& picture, int x, int y, std::uint32_t pixel, int tolerance) {
    for (int index = 0; index < kChannels; ++index) {
        int least = 255;
        int most = 0;
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                const int value = channel(pixelAt(picture, x + dx, y + dy), index);
                least = std::min(least, value);
                most = std::max(most, value);
            }
        }
        const int value = channel(pixel, index);
        if (value < least - tolerance || value > most + tolerance) return false;
    }
    return true;
}

/// A mirroring or turning of offsets from the centre, y down.
struct Image {
    double xx, xy, yx, yy;
};

std::vector<Image> imagesOf(const PictureAxes& axes) {
    std::vector<Image> images;
    for (int k = 0; k < axes.axisCount; ++k) {
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
                note(mismatch,
                     explainedBy(picture, imageX, imageY, pixelAt(picture, x, y), tolerance), x, y);
            }
        }
    }
    return mismatch;
}

Mismatch findSeams(const Picture& picture, const PictureAxes& axes, int tolerance) {
    Mismatch mismatch;
    const double radius = radiusInside(picture, axes);
    for (int k = 0; k < 2 * axes.axisCount; ++k) {
        const double direction = axes.angle + k * std::numbers::pi / axes.axisCount;
        const double alongX = std::cos(direction);
        const double alongY = -std::sin(direction);
        int run = 0;
        for (int distance = 6; distance < radius; ++distance) {
            std::array<std::uint32_t, 9> across{};
            int x = 0;
            int y = 0;
            bool complete = true;
            for (int offset = -4; offset <= 4; ++offset) {
                x = rounded(axes.centreX + alongX * distance - alongY * offset - 0.5);
                y = rounded(axes.centreY + alongY * distance + alongX * offset - 0.5);
                complete = complete && inside(picture, x, y, 0);
                if (complete) across[static_cast<std::size_t>(offset + 4)] = pixelAt(picture, x, y);
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
