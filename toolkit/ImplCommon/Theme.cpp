#include "toolkit/ImplCommon/Theme.h"

#include <algorithm>
#include <cmath>

namespace NRDM {
namespace {

ADMUInt16 channel(float share) {
    constexpr float kFull = 65535;
    return static_cast<ADMUInt16>(std::lround(std::clamp(share, 0.0F, 1.0F) * kFull));
}

ADMRGBColor rgbOf(const AIUIThemeColor& colour) {
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

/// The colour a share of the way from `from` to `to`.
AIUIThemeColor between(const AIUIThemeColor& from, const AIUIThemeColor& to, float share) {
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return {1, mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

constexpr AIUIThemeColor kBlack{1, 0, 0, 0};
constexpr AIUIThemeColor kWhite{1, 1, 1, 1};
constexpr AIUIThemeColor kRed{1, 1, 0, 0};

} // namespace

std::optional<ADMRGBColor> colourOf(ADMColor colour, const Theme& theme) {
    const AIUIThemeColor colours[] = {
        kBlack,
        kWhite,
        theme.focusRing,                              // highlight
        theme.background,                             // text on it
        between(theme.background, kWhite, 0.5F),      // light edge
        theme.background,                             // dialog
        between(theme.background, kBlack, 0.3F),      // shadow edge
        between(theme.background, theme.text, 0.45F), // disabled
        between(theme.background, kWhite, 0.12F),     // button up
        between(theme.background, kBlack, 0.15F),     // button down
        between(theme.background, kBlack, 0.3F),      // its shadow
        theme.editBackground,                         // tip
        theme.editText,                               // its text
        theme.editBackground,                         // window interior
        theme.text,                                   // foreground
        theme.text,
        kRed,
    };
    if (colour < 0 || colour >= std::ssize(colours)) return std::nullopt;
    return rgbOf(colours[colour]);
}

} // namespace NRDM
