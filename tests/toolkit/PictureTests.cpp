#include "easel/paint/Picture.h"
#include "toolkit/ImplCommon/PictureResources.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <string>

using easel::paint::Colour;
using easel::paint::Picture;
using NRDM::ResourceKind;

namespace {

/// 0 by 0 when there is none.
Picture pictureIn(NRDM::Bytes png) { return easel::paint::readPng(png).value_or(Picture{}); }

Picture picture(int id, ResourceKind kind = ResourceKind::Picture) {
    return pictureIn(NRDM::findResource(nullptr, kind, id));
}

/// Asks `question` of each pixel, and counts the answers that are yes.
template <typename Question> int count(const Picture& picture, Question question) {
    int yes = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            if (question(picture.at(x, y))) ++yes;
    return yes;
}

int scaled(int length, double scale) { return static_cast<int>(std::ceil(length * scale)); }

/// Grey of the interface behind the pictures, as the host has it; 0 to 1.
constexpr double kLightGround = 0.84;
constexpr double kDarkGround = 0.325;

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(double red, double green, double blue) {
    return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue);
}

double contrast(double a, double b) { return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05); }

/// The share of the picture that stands out from grey `ground` at least `ratio` to 1, as the web's
/// guidelines for accessible contents count contrast.
double shareInContrast(const Picture& png, double ground, double ratio) {
    const double groundLuminance = luminance(ground, ground, ground);
    const auto standsOut = [&](const Colour& pixel) {
        const double alpha = pixel.alpha;
        const auto over = [&](double channel) { return alpha * channel + (1 - alpha) * ground; };
        const double own = luminance(over(pixel.red), over(pixel.green), over(pixel.blue));
        return contrast(own, groundLuminance) >= ratio;
    };
    return static_cast<double>(count(png, standsOut)) / (png.width * png.height);
}

struct Row {
    int id;
    int width;
    int height;
    bool hasDouble = true;
    bool dim = false;
};
/// Every picture that the panel, the toolbox and the about box name.
constexpr Row kPictures[] = {
    {2100, 24, 24},
    {2103, 24, 24},
    {2105, 24, 24, /*hasDouble*/ false},
    {2106, 24, 19},
    {2108, 24, 19, true, /*dim*/ true},
    {2110, 24, 19},
    {2112, 25, 25},
    {2114, 25, 25},
    {2116, 25, 25},
    {2118, 25, 25, true, /*dim*/ true},
    {2120, 102, 7},
    {2122, 102, 7, true, /*dim*/ true},
    {7000, 600, 468},
};
constexpr int kDark = 1000;

} // namespace

TEST_CASE("every picture has every variant, in the right size") {
    for (const Row& row : kPictures) {
        for (const int id : {row.id, row.id + kDark}) {
            INFO(id);
            const Picture normal = picture(id);
            CHECK(normal.width == row.width);
            CHECK(normal.height == row.height);
            const Picture threeHalves = picture(id, ResourceKind::PictureAtThreeHalves);
            CHECK(threeHalves.width == scaled(row.width, 1.5));
            CHECK(threeHalves.height == scaled(row.height, 1.5));
            const Picture twice = pictureIn(findPicture(nullptr, id, NRDM::PictureDensity::Two));
            CHECK(twice.width == (row.hasDouble ? 2 * row.width : 0));
            CHECK(twice.height == (row.hasDouble ? 2 * row.height : 0));
        }
    }
}

TEST_CASE("pictures stand out from the interface they are for, and not from edge to edge") {
    for (const Row& row : kPictures) {
        INFO(row.id);
        const Picture light = picture(row.id);
        const Picture dark = picture(row.id + kDark);
        CHECK_FALSE(light.pixels == dark.pixels);
        if (row.id == 7000) continue; // has a ground of its own
        // What is disabled is fainter; what is not has enough of it to be read.
        const double ratio = row.dim ? 2.0 : 3.0;
        for (const auto& [png, ground] :
             {std::pair{&light, kLightGround}, std::pair{&dark, kDarkGround}}) {
            CHECK(shareInContrast(*png, ground, ratio) > 0.06);
            CHECK(shareInContrast(*png, ground, 1.05) < 0.95);
            if (row.dim) CHECK(shareInContrast(*png, ground, 3.2) == 0.0);
        }
    }
}

TEST_CASE("disabled pictures show the same thing as enabled ones") {
    for (const int dim : {2108, 2118, 2122}) {
        for (const int theme : {0, kDark}) {
            const Picture normal = picture(dim - 2 + theme);
            const Picture faded = picture(dim + theme);
            REQUIRE(normal.pixels.size() == faded.pixels.size());
            CHECK_FALSE(normal.pixels == faded.pixels);
            for (std::size_t alpha = 3; alpha < normal.pixels.size(); alpha += 4)
                CHECK(normal.pixels[alpha] == faded.pixels[alpha]);
        }
    }
}

TEST_CASE("cursors show on black and on white, and point with a pixel of their own") {
    for (const int cursor : {16021, 16022, 16023, 16024}) {
        INFO(cursor);
        const int ids[] = {cursor, cursor + 100, cursor + 200};
        const int sides[] = {32, 48, 64};
        for (std::size_t i = 0; i < std::size(ids); ++i) {
            const Picture png = picture(ids[i]);
            REQUIRE(png.width == sides[i]);
            REQUIRE(png.height == sides[i]);
            CHECK(shareInContrast(png, 0, 10) > 0.03);
            CHECK(shareInContrast(png, 1, 10) > 0.03);
            const int hot = (2 * 15 + 1) * sides[i] / 32 / 2; // the middle of pixel 15
            CHECK(png.at(hot, hot).alpha > 0);
        }
    }
}
