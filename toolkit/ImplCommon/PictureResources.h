#pragma once

#include "toolkit/ImplCommon/Resources.h"

#include <optional>

namespace NRDM {

/// For which scale of the display a picture is made.
enum class PictureDensity { One, OneAndHalf, Two };

struct PixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// The size that a PNG states; nothing when `png` is none.
[[nodiscard]] std::optional<PixelSize> sizeOfPng(Bytes png);

/// Picture `id` as a PNG made for `density`; empty when there is none of that density.
///
/// The double picture has the next id, which may as well be a picture of its own: it is the double
/// one only when it is twice as large.
[[nodiscard]] Bytes findPicture(SPPlatformAccessRef library, int id, PictureDensity density);

} // namespace NRDM
