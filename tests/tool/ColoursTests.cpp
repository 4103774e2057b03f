#include "tool/drawing/Colours.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>
#include <string>

using namespace facetta;

namespace {

/// Relative luminance by the Web Content Accessibility Guidelines 2.1.
double luminance(const AIRGBColor& colour) {
    const auto linear = [](ai::uint16 channel) {
        const double value = channel / 65535.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) +
           0.0722 * linear(colour.blue);
}

/// Their contrast ratio, 1 to 21.
double contrast(const AIRGBColor& a, const AIRGBColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

TEST_CASE("what is drawn stands out from its ground in light and dark") {
    constexpr double kText = 4.5;    // normal text
    constexpr double kGraphics = 3;  // parts of pictures that carry meaning
    constexpr double kVisible = 1.2; // a difference that is seen, of what carries no meaning alone
    struct Row {
        std::string what;
        AIRGBColor InterfaceColours::*front;
        AIRGBColor InterfaceColours::*ground;
        double least;
    };
    using Colours = InterfaceColours;
    const Row rows[] = {
        {"labels on buttons", &Colours::outline, &Colours::buttonFill, kText},
        {"labels on the button hovered", &Colours::outline, &Colours::hoveredFill, kText},
        {"edges of the title strip", &Colours::outline, &Colours::titleFill, kGraphics},
        {"dimmed labels can still be read", &Colours::dimmedText, &Colours::buttonFill, kGraphics},
        {"but are not like others", &Colours::dimmedText, &Colours::outline, kGraphics},
        {"the button hovered", &Colours::hoveredFill, &Colours::buttonFill, kVisible},
        {"hints", &Colours::hintText, &Colours::hintFill, kText},
        {"axes on their halo", &Colours::axes, &Colours::halo, kGraphics},
        {"axes on the mask", &Colours::axes, &Colours::mask, kGraphics},
        {"the origin's edge", &Colours::axes, &Colours::buttonFill, kGraphics},
        {"mirrored art on the mask", &Colours::preview, &Colours::mask, kGraphics},
    };
    for (const Interface brightness : {Interface::Light, Interface::Dark}) {
        for (const auto& row : rows) {
            const bool dark = brightness == Interface::Dark;
            INFO(row.what, ", dark: ", dark);
            const InterfaceColours& colours = coloursOf(brightness);
            CHECK(contrast(colours.*row.front, colours.*row.ground) >= row.least);
        }
    }
}

TEST_CASE("axes stand out from a page of any grey, by themselves or by their halo") {
    for (const Interface brightness : {Interface::Light, Interface::Dark}) {
        const InterfaceColours& colours = coloursOf(brightness);
        for (ai::uint32 grey = 0; grey <= 0xFF; ++grey) {
            INFO(grey);
            const AIRGBColor page = colours::rgb(grey * 0x10101);
            const double best =
                std::max(contrast(colours.axes, page), contrast(colours.halo, page));
            CHECK(best >= 2.0);
        }
    }
}
