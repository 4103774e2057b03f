#pragma once

#include "host/Types.h"

namespace facetta {

/// How bright the host's interface is.
enum class Interface : bool { Light, Dark };

/// What the tool draws with over the document. The page below may have any colour, so whatever is
/// thin comes with a ground of its own: axes on their halo, texts in their boxes.
struct InterfaceColours {
    AIRGBColor axes;
    AIRGBColor halo;    ///< under the axes
    AIRGBColor preview; ///< mirrored art that is not there yet
    AIRGBColor mask;    ///< over the inactive sectors
    // The on-canvas dialog, the first five, and the hint.
    AIRGBColor titleFill;
    AIRGBColor outline; ///< and texts
    AIRGBColor dimmedText;
    AIRGBColor buttonFill; ///< and the inside of the origin marker
    AIRGBColor hoveredFill;
    AIRGBColor hintFill;
    AIRGBColor hintText;
};

namespace colours {

/// From 8 bits a channel, 0xRRGGBB, to the host's 16: 0xFF becomes 0xFFFF.
constexpr AIRGBColor rgb(ai::uint32 hex) {
    constexpr ai::uint32 kWider = 0x101;
    const auto channel = [hex](int shift) {
        return static_cast<ai::uint16>(((hex >> shift) & 0xFFU) * kWider);
    };
    return {channel(16), channel(8), channel(0)};
}

inline constexpr InterfaceColours kLight{
    .axes = rgb(0xB04505),
    .halo = rgb(0xFFFFFF),
    .preview = rgb(0x0B5FB8),
    .mask = rgb(0xC2C2C2),
    .titleFill = rgb(0x9C9C9C),
    .outline = rgb(0x2E2E2E),
    .dimmedText = rgb(0x8C8C8C),
    .buttonFill = rgb(0xF2F2F2),
    .hoveredFill = rgb(0xBFD9F5),
    .hintFill = rgb(0xFFFFFF),
    .hintText = rgb(0x2E2E2E),
};

inline constexpr InterfaceColours kDark{
    .axes = rgb(0xF58F45),
    .halo = rgb(0x343434),
    .preview = rgb(0x4DA3F2),
    .mask = rgb(0x383838),
    .titleFill = rgb(0x6B6B6B),
    .outline = rgb(0xF0F0F0),
    .dimmedText = rgb(0x8A8A8A),
    .buttonFill = rgb(0x3C3C3C),
    .hoveredFill = rgb(0x2B5C8F),
    .hintFill = rgb(0x2A2A2A),
    .hintText = rgb(0xF0F0F0),
};

} // namespace colours

[[nodiscard]] constexpr const InterfaceColours& coloursOf(Interface brightness) {
    return brightness == Interface::Dark ? colours::kDark : colours::kLight;
}

} // namespace facetta
