#pragma once

#include "easel/paint/Painter.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace easel::paint {

/// Pixels in rows from the top; four bytes each: red, green, blue, and alpha by which the others
/// are not multiplied.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;

    [[nodiscard]] Colour at(int x, int y) const;
};

/// The longest side of a picture, and the most pixels: 400 MB.
constexpr int kLongestSide = 30'000;
constexpr std::int64_t kMostPixels = 100'000'000;

/// A picture that `paint` paints, transparent at first; edges are smoothed. `paint` may be called
/// several times, each time for a part of the picture, and must then paint the same. Throws
/// std::length_error when the size is beyond the limits or not positive.
[[nodiscard]] Picture render(int width, int height, const std::function<void(Painter&)>& paint);

/// The picture in the bytes of a PNG file; nothing when they are none.
[[nodiscard]] std::optional<Picture> readPng(std::span<const std::byte> png);

/// The share of pixels, 0 to 1, of which a channel differs by more than `kVisibleDifference`;
/// transparent pixels are alike whatever their colour. 1 when the sizes differ.
[[nodiscard]] double difference(const Picture& a, const Picture& b);
/// Of 255. Two painters' smoothed edges stay below it almost everywhere.
constexpr int kVisibleDifference = 48;

/// The bytes of a PNG file.
[[nodiscard]] std::string pngText(const Picture& picture);
/// Throws FileError.
void writePng(const Picture& picture, const std::filesystem::path& file);

/// Throws std::length_error.
void checkPictureSize(double width, double height);
/// Throws std::length_error when that many groups, each a picture of its own, are too much.
void checkGroups(int groups, int width, int height);

} // namespace easel::paint
