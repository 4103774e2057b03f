#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Whether a picture shows the symmetry that it should: pixels alone, nothing of the geometry that
/// made it.

namespace facetta::tests {

/// 32-bit pixels, 8 bits each of four channels in any order, rows from the top.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// Axes as a viewer sees them: `centre` in pixels (y down), `angle` in radians counter-clockwise
/// from the positive x axis.
struct PictureAxes {
    int axisCount = 1;
    double angle = 0.0;
    double centreX = 0.0;
    double centreY = 0.0;
};

/// What a comparison found.
struct Mismatch {
    long compared = 0;
    long wrong = 0;
    int x = -1; ///< The first wrong pixel.
    int y = -1;
};

/// Compares the picture, inside the largest circle about the centre, with itself mirrored across
/// every axis and turned by every step. A pixel is right when each channel lies within the range of
/// the 3 x 3 neighbourhood of its image, widened by `tolerance`: what antialiasing may do to it.
[[nodiscard]] Mismatch compareWithImages(const Picture& picture, const PictureAxes& axes,
                                         int tolerance);

/// Looks along every axis for lines that should not be there: where the pixels 3 and 4 to both
/// sides of the axis have one colour, the pixels on it and beside it must have this colour too. A
/// few odd pixels in a row are the tip of a shape; what is wrong counts from the fortieth on. Near
/// the centre, where the next axis is close, nothing is looked at.
[[nodiscard]] Mismatch findSeams(const Picture& picture, const PictureAxes& axes, int tolerance);

} // namespace facetta::tests
