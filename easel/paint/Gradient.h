#pragma once

#include "easel/paint/Painter.h"

#include <optional>

namespace easel::paint {

/// The colour of the whole when the gradient is none: a single stop, or no extent. Transparent when
/// it has no stops at all.
[[nodiscard]] std::optional<Colour> singleColour(const svg::GradientContent& gradient);

/// The gradient's colour at a point of its own coordinates (gradientTransform already undone).
[[nodiscard]] Colour colourAt(const svg::GradientContent& gradient, Point point);

} // namespace easel::paint
