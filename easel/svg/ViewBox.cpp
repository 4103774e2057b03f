#include "easel/svg/ViewBox.h"

#include "easel/svg/Numbers.h"

#include <algorithm>

namespace easel::svg {
namespace {

/// "xMinYMid" and so on: which part of the room that is left over comes before the box.
double alignment(std::string_view aspect, char axis) {
    const std::size_t at = aspect.find(axis);
    if (at == std::string_view::npos) return 0.5;
    const std::string_view word = aspect.substr(at + 1, 3);
    return word == "Min" ? 0.0 : word == "Max" ? 1.0 : 0.5;
}

} // namespace

std::optional<ViewBox> parseViewBox(std::string_view text) {
    const NumberList list = parseNumbers(text);
    if (!list.complete || list.numbers.size() != 4) return std::nullopt;
    const ViewBox box{{list.numbers[0], list.numbers[1]}, {list.numbers[2], list.numbers[3]}};
    for (const double number : list.numbers)
        if (!(number <= kLargestCoordinate && number >= -kLargestCoordinate)) return std::nullopt;
    if (!(box.size.x > 0 && box.size.y > 0)) return std::nullopt;
    return box;
}

Matrix fitted(const ViewBox& box, Point corner, Point size, std::string_view aspect) {
    double scaleX = size.x / box.size.x;
    double scaleY = size.y / box.size.y;
    aspect = trimmed(aspect);
    if (!aspect.starts_with("none")) {
        const bool slice = aspect.ends_with("slice");
        scaleX = scaleY = slice ? std::max(scaleX, scaleY) : std::min(scaleX, scaleY);
    }
    const double roomX = size.x - scaleX * box.size.x;
    const double roomY = size.y - scaleY * box.size.y;
    return {scaleX,
            0,
            0,
            scaleY,
            corner.x + alignment(aspect, 'x') * roomX - scaleX * box.corner.x,
            corner.y + alignment(aspect, 'Y') * roomY - scaleY * box.corner.y};
}

void enterViewBox(const Element& element, Context& context, Point given) {
    const Viewport& outer = context.viewport;
    const bool symbol = element.name() == "symbol";
    const Point corner =
        symbol ? Point{}
               : Point{element.length("x", outer.width, 0), element.length("y", outer.height, 0)};
    Point size{element.length("width", outer.width, outer.width),
               element.length("height", outer.height, outer.height)};
    if (given.x > 0) size.x = given.x;
    if (given.y > 0) size.y = given.y;
    const auto box = parseViewBox(element.get("viewBox"));
    if (box) {
        context.matrix =
            context.matrix * fitted(*box, corner, size, element.get("preserveAspectRatio"));
        context.viewport = {box->size.x, box->size.y};
    } else {
        context.matrix = context.matrix * translation(corner);
        context.viewport = {size.x, size.y};
    }
}

} // namespace easel::svg
