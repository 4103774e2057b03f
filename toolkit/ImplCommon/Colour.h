#pragma once

#include <cmath>
#include <cstdint>

namespace NRDM {

/// An opaque colour of the screen, 0..255 in each field.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour&) const = default;
};

/// `part` (0..1) of `over`, the rest of `under`.
[[nodiscard]] inline Colour mix(Colour under, Colour over, double part) {
    const auto blend = [part](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(std::lround(a + (b - a) * part));
    };
    return {blend(under.red, over.red), blend(under.green, over.green),
            blend(under.blue, over.blue)};
}

} // namespace NRDM
