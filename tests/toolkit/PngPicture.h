#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace facetta::tests {

/// A picture as its pixels, row by row from the top.
struct PngPicture {
    struct Pixel {
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;
        std::uint8_t alpha = 0;

        bool operator==(const Pixel&) const = default;
    };

    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;
};

/// 0 by 0 when `png` is no picture.
[[nodiscard]] PngPicture readPng(std::span<const std::byte> png);

} // namespace facetta::tests
