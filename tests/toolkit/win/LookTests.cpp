/// What can be said of the look of controls without looking.

#include "toolkit/ImplCommon/Palette.h"
#include "toolkit/ImplWin/CoADMDrawer.h"
#include "toolkit/ImplWin/NRDMSlider.h"
#include "toolkit/ImplWin/Shapes.h"
#include "toolkit/ImplWin/Text.h"
#include "toolkit/Toolkit.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace NRDM;

namespace {

/// The four brightnesses of the host's interface, from dark to light.
Theme themeOf(float background) {
    const bool dark = background < 0.5F;
    const auto grey = [](float value) { return AIUIThemeColor{1, value, value, value}; };
    return {.background = grey(background),
            .text = grey(dark ? 0.87F : 0.1F),
            .focusRing = grey(0.5F),
            .editText = grey(dark ? 0.9F : 0.1F),
            .editBackground = grey(dark ? background - 0.08F : 1.0F),
            .dark = dark};
}

/// Of two colours, 1 to 21, as the Web Content Accessibility Guidelines 2.1 define it.
double contrast(Colour a, Colour b) {
    const auto luminance = [](Colour colour) {
        const auto linear = [](std::uint8_t channel) {
            const double value = channel / 255.0;
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) +
               0.0722 * linear(colour.blue);
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// How many pixels' worth of white is on a black surface.
double whiteOn(Surface& surface) {
    double sum = 0;
    for (int y = 0; y < surface.size().cy; ++y)
        for (const std::uint32_t pixel : surface.row(y))
            sum += (pixel & 0xFF) / 255.0;
    return sum;
}

constexpr Colour kWhite{255, 255, 255};

} // namespace

TEST_CASE("text can be read on every part, at each of the host's brightnesses") {
    for (const float background : {0.2F, 0.325F, 0.72F, 0.94F}) {
        CAPTURE(background);
        const Palette palette(themeOf(background));
        CHECK(contrast(palette.text, palette.background) >= 4.5);
        CHECK(contrast(palette.text, palette.face) >= 4.5);
        CHECK(contrast(palette.text, palette.faceHot) >= 4.0);
        CHECK(contrast(palette.text, palette.menu) >= 4.5);
        CHECK(contrast(palette.text, palette.tip) >= 4.5);
        CHECK(contrast(palette.fieldText, palette.field) >= 4.5);
        CHECK(contrast(palette.onAccent, palette.accent) >= 3.0);
        CHECK(contrast(palette.dimText, palette.background) >= 2.2); // dim, yet there
        CHECK(contrast(palette.dimText, palette.background) <
              contrast(palette.text, palette.background) / 1.5);
    }
}

TEST_CASE("shapes cover the area that geometry gives them") {
    const GdiPlusSession session;
    const auto covered = [](const auto& draw) {
        Surface surface({64, 64});
        draw(surface);
        return whiteOn(surface);
    };
    constexpr double kPi = std::numbers::pi;
    CHECK(std::abs(covered([](Surface& s) {
                       fillRound(s, {10, 10, 50, 50}, 20, kWhite);
                   }) -
                   kPi * 400) < 6);
    CHECK(std::abs(covered([](Surface& s) {
                       fillRound(s, {10.5, 8, 50.5, 30}, 4, kWhite);
                   }) -
                   (40 * 22 - (4 - kPi) * 16)) < 6);
    CHECK(std::abs(covered([](Surface& s) {
                       strokeRound(s, {8, 8, 56, 56}, 24, 2, kWhite);
                   }) -
                   kPi * (24 * 24 - 22 * 22)) < 6);
    const Spot triangle[] = {{32, 8}, {56, 56}, {8, 56}};
    CHECK(std::abs(covered([&](Surface& s) { fillConvex(s, triangle, kWhite); }) - 48 * 48 / 2.0) <
          12);
    SUBCASE("and nothing outside the clip or the surface") {
        CHECK(covered([](Surface& s) {
                  s.setClip({0, 0, 20, 20});
                  fillRound(s, {-100, -100, 200, 200}, 0, kWhite);
              }) == 400);
    }
}

TEST_CASE("a slider's pixels and values are each other's inverse") {
    const SliderScale scale{-360, 360, 5, 105};
    for (int pixel = 5; pixel <= 105; ++pixel)
        CHECK(scale.pixelOf(scale.valueAt(pixel)) == pixel);
    CHECK(scale.valueAt(-1000) == -360);
    CHECK(scale.valueAt(1000) == 360);
    const SliderScale empty{3, 3, 5, 105};
    CHECK(empty.pixelOf(3) == 5);
}

TEST_CASE("a line of text keeps within its place, whatever is to become of the rest") {
    const GdiPlusSession session;
    const RECT place{20, 10, 60, 30};
    for (const Overflow overflow :
         {Overflow::Tighten, Overflow::EndEllipsis, Overflow::MiddleEllipsis, Overflow::Clip}) {
        Surface surface({100, 40});
        drawLine(surface, place,
                 {{L"Remove All Layer Axes", -1}, {}, {}, kWhite, Justify::Left, overflow});
        double inside = 0;
        for (LONG y = 0; y < 40; ++y)
            for (LONG x = 0; x < 100; ++x) {
                const bool white =
                    (surface.row(static_cast<int>(y))[static_cast<std::size_t>(x)] & 0xFF) != 0;
                const bool within =
                    y >= place.top && y < place.bottom && x >= place.left && x <= place.right;
                if (within)
                    inside += white ? 1 : 0;
                else
                    CHECK_FALSE(white);
            }
        CHECK(inside > 20);
    }
}

TEST_CASE("fields and labels beside each other share a baseline") {
    const GdiPlusSession session;
    const TextStyle style = textStyleOf(2, true);
    for (const double factor : {1.0, 1.5, 2.0}) {
        CAPTURE(factor);
        const Scale scale{factor};
        for (const int top : {91, 92, 119, 120}) { // odd and even, which round differently
            CAPTURE(top);
            const auto baseline = [&](int from, int to) {
                const Scale inWindow{factor, from};
                return scale.toPixels(from) +
                       baselineOf(0, scale.toPixels(to) - scale.toPixels(from), style, inWindow);
            };
            const int label = baseline(top + 3, top + 17);
            const int field = baseline(top, top + 19);
            CHECK(label == field);
            CHECK(baseline(top - 1, top + 20) == field); // a button
        }
    }
}

TEST_CASE("a drawer's straight lines are sharp at every scale") {
    const auto screen = std::make_shared<Screen>(
        Themes{}, [](int, PictureDensity) { return std::span<const std::byte>(); });
    struct Row {
        double factor;
        int thickness;
    };
    for (const Row& row : {Row{1.0, 1}, Row{1.5, 1}, Row{2.0, 2}}) {
        CAPTURE(row.factor);
        Surface surface({64, 64});
        CoADMDrawer drawer(*screen, surface, Scale{row.factor}, false);
        drawer.setColour(kWhite);
        drawer.drawLine({3, 5}, {12, 5});
        drawer.drawLine({5, 9}, {5, 18}); // ends included
        CHECK(whiteOn(surface) == 2 * row.thickness * 10 * row.factor);
    }
}
