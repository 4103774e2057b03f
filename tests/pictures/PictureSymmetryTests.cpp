#include "tests/pictures/PictureSymmetry.h"

#include <doctest/doctest.h>

#include <cmath>
#include <functional>
#include <numbers>

using facetta::tests::compareWithImages;
using facetta::tests::findSeams;
using facetta::tests::Picture;
using facetta::tests::PictureAxes;

namespace {

constexpr int kSize = 240;
constexpr int kSupersampling = 4;
constexpr int kTolerance = 8;

/// Grey levels 0..1 by offset from the centre (y up), averaged over each pixel.
Picture painted(const std::function<double(double, double)>& shade) {
    Picture picture{kSize, kSize, {}};
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            double sum = 0.0;
            for (int i = 0; i < kSupersampling * kSupersampling; ++i) {
                const int column = i % kSupersampling;
                const int row = i / kSupersampling;
                const double u = x + (column + 0.5) / kSupersampling;
                const double v = y + (row + 0.5) / kSupersampling;
                sum += shade(u - kSize / 2.0, kSize / 2.0 - v);
            }
            const double mean = sum / (kSupersampling * kSupersampling);
            picture.pixels.push_back(0x010101U *
                                     static_cast<std::uint32_t>(std::lround(255 * mean)));
        }
    }
    return picture;
}

PictureAxes axesOf(int axisCount, double angle) {
    return {axisCount, angle, kSize / 2.0, kSize / 2.0};
}

/// A lobed disc with the symmetry of the axes and of no more: lobes that lean to the axes.
double ornament(const PictureAxes& axes, double x, double y) {
    const double folded = std::cos(axes.axisCount * (std::atan2(y, x) - axes.angle));
    return std::hypot(x, y) < 60.0 + 25.0 * folded ? 0.8 : 0.1;
}

} // namespace

TEST_CASE("a symmetric picture is found symmetric, and one with a fault is not") {
    for (const int axisCount : {1, 2, 3, 7}) {
        INFO("axes: ", axisCount);
        const PictureAxes axes = axesOf(axisCount, 0.4);
        const auto shade = [&axes](double x, double y) { return ornament(axes, x, y); };
        const auto right = compareWithImages(painted(shade), axes, kTolerance);
        CHECK(right.compared > 10000);
        CHECK(right.wrong == 0);

        const auto blot = [&](double x, double y) {
            return std::hypot(x - 20.0, y - 71.0) < 4.0 ? 1.0 : shade(x, y);
        };
        CHECK(compareWithImages(painted(blot), axes, kTolerance).wrong > 0);
        const auto shifted = [&](double x, double y) { return shade(x - 3.0, y); };
        CHECK(compareWithImages(painted(shifted), axes, kTolerance).wrong > 0);
        CHECK(compareWithImages(painted(shade), axesOf(axisCount, 0.5), kTolerance).wrong > 0);
    }
}

TEST_CASE("a hairline along an axis is found, a shape that ends there is not mistaken for one") {
    const PictureAxes axes = axesOf(3, 0.3);
    const auto shade = [&axes](double x, double y) { return ornament(axes, x, y); };
    const auto clean = findSeams(painted(shade), axes, kTolerance);
    CHECK(clean.compared > 300);
    CHECK(clean.wrong == 0);

    const auto hairline = [&](double x, double y) {
        const double across = std::abs(x * std::sin(axes.angle) - y * std::cos(axes.angle));
        return across < 0.15 ? 0.5 : shade(x, y);
    };
    CHECK(findSeams(painted(hairline), axes, kTolerance).wrong > 20);
}
