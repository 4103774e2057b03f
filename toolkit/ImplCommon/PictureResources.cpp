#include "toolkit/ImplCommon/PictureResources.h"

#include <algorithm>
#include <array>

namespace NRDM {
namespace {

constexpr std::array<unsigned char, 16> kHead{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                              0,    0,   0,   13,  'I',  'H',  'D',  'R'};
/// Of a side; more is no picture of an interface.
constexpr unsigned kMostPixels = 1 << 15;

/// Big-endian, unlike all else in resources.
unsigned number(Bytes bytes) {
    unsigned value = 0;
    for (const std::byte byte : bytes)
        value = value << 8 | std::to_integer<unsigned>(byte);
    return value;
}

} // namespace

std::optional<PixelSize> sizeOfPng(Bytes png) {
    constexpr std::size_t kSide = 4;
    if (png.size() < kHead.size() + 2 * kSide) return std::nullopt;
    const Bytes head = std::as_bytes(std::span(kHead));
    if (!std::ranges::equal(png.first(head.size()), head)) return std::nullopt;
    const unsigned width = number(png.subspan(head.size(), kSide));
    const unsigned height = number(png.subspan(head.size() + kSide, kSide));
    if (width > kMostPixels || height > kMostPixels) return std::nullopt;
    return PixelSize{static_cast<int>(width), static_cast<int>(height)};
}

Bytes findPicture(SPPlatformAccessRef library, int id, PictureDensity density) {
    if (density == PictureDensity::OneAndHalf)
        return findResource(library, ResourceKind::PictureAtThreeHalves, id);
    const Bytes plain = findResource(library, ResourceKind::Picture, id);
    if (density == PictureDensity::One) return plain;
    const Bytes next = findResource(library, ResourceKind::Picture, id + 1);
    const auto size = sizeOfPng(plain);
    const auto nextSize = sizeOfPng(next);
    const bool isDouble =
        size && nextSize && *nextSize == PixelSize{2 * size->width, 2 * size->height};
    return isDouble ? next : Bytes{};
}

} // namespace NRDM
