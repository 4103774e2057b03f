#pragma once

#include "easel/svg/Colour.h"
#include "host/PathStyle.h"

#include <optional>
#include <string>
#include <string_view>

/// Colours of the host that SVG does not know, and what they look like on screen.
namespace easel::svg {

/// The look of a gray, process or RGB colour; none for patterns, gradients and spot colours.
[[nodiscard]] std::optional<Colour> plainColour(const AIColor& color);

/// "gray 0.5" or "cmyk 0 0.2 1 0"; empty for any other colour.
[[nodiscard]] std::string inkText(const AIColor& color);
[[nodiscard]] std::optional<AIColor> parseInk(std::string_view text);

} // namespace easel::svg
