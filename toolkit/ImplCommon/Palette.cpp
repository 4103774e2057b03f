#include "toolkit/ImplCommon/Palette.h"

#include "toolkit/ImplCommon/Theme.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace NRDM {
namespace {

std::uint8_t channel(AIReal value) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0F, 1.0F) * 255.0F));
}

Colour toColour(const AIUIThemeColor& colour) {
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

constexpr Colour kWhite{255, 255, 255};
constexpr Colour kBlack{0, 0, 0};
constexpr Colour kRed{214, 48, 49};

/// Where the host's focus colour is a plain grey, as in its older interfaces, this one says "here".
constexpr Colour kBlue{38, 128, 235};

bool isGrey(Colour colour) {
    const auto [least, most] = std::minmax({colour.red, colour.green, colour.blue});
    return most - least < 24;
}

/// Perceived brightness, 0..255, with the weights of ITU-R BT.601.
double brightness(Colour colour) {
    return 0.299 * colour.red + 0.587 * colour.green + 0.114 * colour.blue;
}

} // namespace

Palette::Palette(const Theme& theme)
    : dark(theme.dark), background(toColour(theme.background)), text(toColour(theme.text)),
      dimText(mix(background, text, dark ? 0.52 : 0.48)),
      accent(isGrey(toColour(theme.focusRing)) ? kBlue : toColour(theme.focusRing)),
      onAccent(brightness(accent) > 170 ? kBlack : kWhite), field(toColour(theme.editBackground)),
      fieldText(toColour(theme.editText)),
      fieldBorder(dark ? mix(background, kWhite, 0.20) : mix(background, kBlack, 0.34)),
      face(mix(background, kWhite, dark ? 0.085 : 0.55)),
      faceHot(mix(background, kWhite, dark ? 0.125 : 0.82)),
      facePressed(mix(background, kBlack, dark ? 0.30 : 0.14)),
      faceBorder(dark ? mix(background, kWhite, 0.27) : mix(background, kBlack, 0.36)),
      faceOn(mix(background, kBlack, dark ? 0.36 : 0.13)),
      line(dark ? mix(background, kBlack, 0.32) : mix(background, kBlack, 0.20)),
      light(dark ? mix(background, kWhite, 0.12) : mix(background, kWhite, 0.65)),
      shadow(mix(background, kBlack, dark ? 0.40 : 0.26)),
      rowHot(mix(field, accent, dark ? 0.38 : 0.18)),
      menu(dark ? mix(background, kBlack, 0.16) : mix(background, kWhite, 0.70)),
      tip(dark ? mix(background, kBlack, 0.30) : kWhite) {}

std::optional<Colour> admColour(int number, const Palette& palette) {
    const Colour colours[] = {
        kBlack,
        kWhite,
        palette.accent,      // highlight
        palette.onAccent,    // text on it
        palette.light,       // light edge
        palette.background,  // of dialogs
        palette.shadow,      // shadow edge
        palette.dimText,     // disabled
        palette.face,        // button up
        palette.facePressed, // button down
        palette.shadow,      // its shadow
        palette.tip,
        palette.text,  // of tips
        palette.field, // window interior
        palette.text,  // foreground
        palette.text,
        kRed,
    };
    if (number < 0 || number >= std::ssize(colours)) return std::nullopt;
    return colours[number];
}

} // namespace NRDM
