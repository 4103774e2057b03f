#pragma once

namespace NRDM {

/// Of a slider's thumb, in units of the dialog.
constexpr int kThumbRadius = 5;

/// A slider's values on a bar of pixels: the middle of the thumb keeps its radius away from both
/// ends.
struct SliderScale {
    double lowest = 0;
    double highest = 1;
    int left = 0;
    int right = 0;

    [[nodiscard]] int pixelOf(double value) const;
    [[nodiscard]] double valueAt(int pixel) const;
};

} // namespace NRDM
