#pragma once

#include "easel/svg/Outline.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

/// What percentages of lengths refer to.
struct Viewport {
    double width = 0.0;
    double height = 0.0;
    [[nodiscard]] double diagonal() const; ///< For lengths that are neither across nor down.
};

/// The value of an attribute of the shape; empty when it has none.
using AttributeLookup = std::function<std::string(std::string_view)>;

struct ShapeOutline {
    Outline outline;   ///< Empty: the shape is not drawn.
    std::string error; ///< What of its attributes is wrong; what came before it is drawn.
};

[[nodiscard]] bool isShape(std::string_view element);

/// The outline of a rect, circle, ellipse, line, polyline, polygon or path. Nothing for any other
/// element.
[[nodiscard]] std::optional<ShapeOutline> shapeOutline(std::string_view element,
                                                       const AttributeLookup& attribute,
                                                       const Viewport& viewport, double fontSize);

} // namespace easel::svg
