#pragma once

#include "easel/svg/ReadingState.h"

namespace easel::svg {

struct ViewBox {
    Point corner;
    Point size;
};

/// Nothing when the text is no four numbers or the sizes are not positive.
[[nodiscard]] std::optional<ViewBox> parseViewBox(std::string_view text);

/// From the view box to a rectangle, as `preserveAspectRatio` says: "none", or an alignment and
/// "meet" or "slice".
[[nodiscard]] Matrix fitted(const ViewBox& box, Point corner, Point size, std::string_view aspect);

/// Goes into a nested <svg> or a <symbol>: its x, y, width, height and viewBox. `given` is the size
/// that a <use> gives it; 0: none.
void enterViewBox(const Element& element, Context& context, Point given = {});

} // namespace easel::svg
