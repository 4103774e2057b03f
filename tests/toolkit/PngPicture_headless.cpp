#include "tests/toolkit/PngPicture.h"

#include <cairo.h>

#include <algorithm>
#include <cstring>

namespace facetta::tests {
namespace {

cairo_status_t readFrom(void* rest, unsigned char* to, unsigned int count) {
    auto& bytes = *static_cast<std::span<const std::byte>*>(rest);
    if (count > bytes.size()) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(to, bytes.data(), count);
    bytes = bytes.subspan(count);
    return CAIRO_STATUS_SUCCESS;
}

/// A channel as it was before it was multiplied with the pixel's opacity.
std::uint8_t plain(std::uint32_t channel, std::uint32_t alpha) {
    if (alpha == 0) return 0;
    return static_cast<std::uint8_t>(std::min(255U, (channel * 255 + alpha / 2) / alpha));
}

} // namespace

PngPicture readPng(std::span<const std::byte> png) {
    cairo_surface_t* const surface = cairo_image_surface_create_from_png_stream(readFrom, &png);
    PngPicture picture;
    if (cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS) {
        picture.width = cairo_image_surface_get_width(surface);
        picture.height = cairo_image_surface_get_height(surface);
        const unsigned char* row = cairo_image_surface_get_data(surface);
        for (int y = 0; y < picture.height; ++y, row += cairo_image_surface_get_stride(surface)) {
            for (int x = 0; x < picture.width; ++x) {
                std::uint32_t argb = 0;
                std::memcpy(&argb, row + 4 * std::ptrdiff_t{x}, sizeof argb);
                const std::uint32_t alpha = argb >> 24;
                picture.pixels.push_back({plain(argb >> 16 & 0xFF, alpha),
                                          plain(argb >> 8 & 0xFF, alpha), plain(argb & 0xFF, alpha),
                                          static_cast<std::uint8_t>(alpha)});
            }
        }
    }
    cairo_surface_destroy(surface);
    return picture;
}

} // namespace facetta::tests
