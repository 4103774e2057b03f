#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

/// sRGB, each channel 0 to 1, colour not multiplied by alpha.
struct Colour {
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 1.0F;
    bool operator==(const Colour&) const = default;
};

/// A colour's name, #rgb, #rgba, #rrggbb, #rrggbbaa, rgb(), rgba(), hsl(), hsla() or transparent.
/// Nothing for any other text; "none" and "currentColor" are no colours but paints.
[[nodiscard]] std::optional<Colour> parseColour(std::string_view text);

/// "#rrggbb" when the channels are whole bytes, else "rgb(r% g% b%)" with all their digits. Alpha
/// is an attribute of its own in SVG and not written here.
[[nodiscard]] std::string formatColour(const Colour& colour);

} // namespace easel::svg
