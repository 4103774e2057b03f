#include "easel/paint/PaintDocument.h"
#include "easel/svg/SvgFile.h"

#include <doctest/doctest.h>

#include <cairo.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>

/// Another program's picture of what we save, compared with ours and with its picture of the
/// drawing as it was.

using namespace easel;

namespace {

/// How far a channel may be off in a pixel that counts as the same.
constexpr int kTolerance = 16;

struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> words;
};

Pixels readPng(const std::filesystem::path& file) {
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface{
        cairo_image_surface_create_from_png(file.c_str()), cairo_surface_destroy};
    REQUIRE(cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS);
    Pixels pixels{cairo_image_surface_get_width(surface.get()),
                  cairo_image_surface_get_height(surface.get()),
                  {}};
    pixels.words.resize(static_cast<std::size_t>(pixels.width) *
                        static_cast<std::size_t>(pixels.height));
    const unsigned char* row = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < pixels.height; ++y, row += stride)
        std::memcpy(pixels.words.data() + static_cast<std::ptrdiff_t>(y) * pixels.width, row,
                    4 * static_cast<std::size_t>(pixels.width));
    return pixels;
}

double partOfOthers(const Pixels& one, const Pixels& other) {
    REQUIRE(one.width == other.width);
    REQUIRE(one.height == other.height);
    std::size_t others = 0;
    for (std::size_t i = 0; i < one.words.size(); ++i) {
        int difference = 0;
        for (const int shift : {0, 8, 16}) {
            const auto channel = [&](const Pixels& p) {
                return static_cast<int>(p.words[i] >> shift & 255);
            };
            difference = std::max(difference, std::abs(channel(one) - channel(other)));
        }
        if (difference > kTolerance) ++others;
    }
    return static_cast<double>(others) / static_cast<double>(one.words.size());
}

bool converted(const std::filesystem::path& svg, const std::filesystem::path& png) {
    const std::string command =
        "rsvg-convert -b white '" + svg.string() + "' -o '" + png.string() + "' 2>/dev/null";
    return std::system(command.c_str()) == 0;
}

} // namespace

TEST_CASE("another program sees in saved drawings what it saw before, and what we paint") {
    if (std::system("rsvg-convert --version >/dev/null 2>&1") != 0) {
        MESSAGE("left out: there is no rsvg-convert");
        return;
    }
    const auto folder = std::filesystem::temp_directory_path() / "easel-second-opinion";
    std::filesystem::create_directories(folder);
    struct Row {
        const char* drawing;
        double saved; ///< The part of the pixels that may be others after saving ...
        double ours;  ///< ... and in our picture, where text and tiles are smoothed otherwise.
    };
    const Row rows[] = {
        {"examples/rosette.svg", 0.001, 0.001},
        {"examples/crossing.svg", 0.001, 0.001},
        {"examples/layered.svg", 0.001, 0.002},
        {"fuzz/corpus/svg_fuzz/mixed.svg", 0.004, 0.02},
    };
    for (const auto& row : rows) {
        INFO(std::string{row.drawing});
        const svg::OpenedDrawing opened = svg::readSvg(row.drawing);
        paint::PaintOptions options;
        options.background = paint::Colour{1, 1, 1, 1};
        REQUIRE(
            paint::writePng(paint::paintDocument(*opened.document, options), folder / "ours.png"));
        svg::writeSvg(*opened.document, folder / "saved.svg");
        REQUIRE(converted(row.drawing, folder / "before.png"));
        REQUIRE(converted(folder / "saved.svg", folder / "after.png"));
        const Pixels before = readPng(folder / "before.png");
        CHECK(partOfOthers(before, readPng(folder / "after.png")) <= row.saved);
        CHECK(partOfOthers(before, readPng(folder / "ours.png")) <= row.ours);
    }
    std::filesystem::remove_all(folder);
}
