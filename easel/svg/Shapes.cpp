#include "easel/svg/Shapes.h"

#include "easel/svg/Numbers.h"
#include "easel/svg/PathData.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::svg {
namespace {

/// Reads the attributes of one shape, and remembers the first that is no length.
class Lengths {
public:
    Lengths(const AttributeLookup& attribute, const Viewport& viewport, double fontSize)
        : attribute_(attribute), viewport_(viewport), fontSize_(fontSize) {}

    double across(std::string_view name) { return read(name, viewport_.width).value_or(0.0); }
    double down(std::string_view name) { return read(name, viewport_.height).value_or(0.0); }
    double slanted(std::string_view name) { return read(name, viewport_.diagonal()).value_or(0.0); }

    /// Nothing when absent or "auto".
    std::optional<double> read(std::string_view name, double whole) {
        const std::string text = attribute_(name);
        if (text.empty() || text == "auto") return std::nullopt;
        const std::optional<double> length = parseLength(text, whole, fontSize_);
        if (length && std::abs(*length) <= kLargestCoordinate) return length;
        if (error_.empty())
            error_ = std::string{name} + " is '" + text.substr(0, 20) + "', which is no length";
        return std::nullopt;
    }

    [[nodiscard]] const Viewport& viewport() const { return viewport_; }
    [[nodiscard]] const std::string& error() const { return error_; }

private:
    const AttributeLookup& attribute_;
    const Viewport& viewport_;
    double fontSize_;
    std::string error_;
};

Subpath ellipse(Point centre, Point radii) {
    Subpath subpath{{cornerAt({centre.x + radii.x, centre.y})}, false};
    const Point ends[] = {{centre.x, centre.y + radii.y},
                          {centre.x - radii.x, centre.y},
                          {centre.x, centre.y - radii.y},
                          {centre.x + radii.x, centre.y}};
    for (const Point end : ends)
        appendArc(subpath, radii, 0, false, true, end);
    close(subpath);
    return subpath;
}

/// A missing radius is the other one; none is more than half its side.
Outline rect(Lengths& lengths) {
    const Point corner{lengths.across("x"), lengths.down("y")};
    const Point size{lengths.across("width"), lengths.down("height")};
    if (size.x <= 0 || size.y <= 0) return {};
    const auto rx = lengths.read("rx", lengths.viewport().width);
    const auto ry = lengths.read("ry", lengths.viewport().height);
    const Point radii{std::clamp(rx.value_or(ry.value_or(0)), 0.0, size.x / 2),
                      std::clamp(ry.value_or(rx.value_or(0)), 0.0, size.y / 2)};
    const Point far = corner + size;
    if (radii.x <= 0 || radii.y <= 0) return rectangle(corner, far);
    Subpath subpath;
    const auto lineTo = [&](Point end) {
        if (end != subpath.anchors.back().p) appendLine(subpath, end);
    };
    subpath.anchors.push_back(cornerAt({corner.x + radii.x, corner.y}));
    lineTo({far.x - radii.x, corner.y});
    appendArc(subpath, radii, 0, false, true, {far.x, corner.y + radii.y});
    lineTo({far.x, far.y - radii.y});
    appendArc(subpath, radii, 0, false, true, {far.x - radii.x, far.y});
    lineTo({corner.x + radii.x, far.y});
    appendArc(subpath, radii, 0, false, true, {corner.x, far.y - radii.y});
    lineTo({corner.x, corner.y + radii.y});
    appendArc(subpath, radii, 0, false, true, {corner.x + radii.x, corner.y});
    close(subpath);
    return {subpath};
}

Outline circle(Lengths& lengths) {
    const double radius = lengths.slanted("r");
    if (radius <= 0) return {};
    return {ellipse({lengths.across("cx"), lengths.down("cy")}, {radius, radius})};
}

Outline ellipseElement(Lengths& lengths) {
    const auto rx = lengths.read("rx", lengths.viewport().width);
    const auto ry = lengths.read("ry", lengths.viewport().height);
    const Point radii{rx.value_or(ry.value_or(0)), ry.value_or(rx.value_or(0))};
    if (radii.x <= 0 || radii.y <= 0) return {};
    return {ellipse({lengths.across("cx"), lengths.down("cy")}, radii)};
}

Outline line(Lengths& lengths) {
    Subpath subpath{{cornerAt({lengths.across("x1"), lengths.down("y1")})}, false};
    appendLine(subpath, {lengths.across("x2"), lengths.down("y2")});
    return {subpath};
}

ShapeOutline poly(const std::string& points, bool closed) {
    const NumberList list = parseNumbers(points);
    ShapeOutline result;
    const auto tooFar = [](double number) { return std::abs(number) > kLargestCoordinate; };
    if (!list.complete || list.numbers.size() % 2 == 1)
        result.error = "points is no list of pairs of numbers";
    if (std::ranges::any_of(list.numbers, tooFar)) return {{}, "a coordinate is beyond 1e9"};
    Subpath subpath;
    for (std::size_t i = 0; i + 1 < list.numbers.size(); i += 2)
        subpath.anchors.push_back(cornerAt({list.numbers[i], list.numbers[i + 1]}));
    if (subpath.anchors.empty()) return result;
    if (closed) close(subpath);
    result.outline.push_back(std::move(subpath));
    return result;
}

/// Moves that draw nothing are left over by many programs; one alone is a path of one anchor.
void dropEmptyMoves(Outline& outline) {
    if (outline.size() < 2) return;
    const auto drawsNothing = [](const Subpath& subpath) {
        return subpath.anchors.size() == 1 && !subpath.closed;
    };
    std::erase_if(outline, drawsNothing);
}

struct Row {
    std::string_view element;
    Outline (*outline)(Lengths&);
};
constexpr Row kShapes[] = {
    {"rect", rect}, {"circle", circle}, {"ellipse", ellipseElement}, {"line", line}};

} // namespace

bool isShape(std::string_view element) {
    return element == "path" || element == "polyline" || element == "polygon" ||
           std::ranges::find(kShapes, element, &Row::element) != std::end(kShapes);
}

double Viewport::diagonal() const { return std::hypot(width, height) / std::sqrt(2.0); }

std::optional<ShapeOutline> shapeOutline(std::string_view element, const AttributeLookup& attribute,
                                         const Viewport& viewport, double fontSize) {
    if (element == "path") {
        PathData data = parsePathData(attribute("d"));
        if (!data.error.empty()) data.error = "in the path data " + data.error;
        dropEmptyMoves(data.outline);
        return ShapeOutline{std::move(data.outline), std::move(data.error)};
    }
    if (element == "polyline" || element == "polygon")
        return poly(attribute("points"), element == "polygon");
    for (const Row& row : kShapes) {
        if (row.element != element) continue;
        Lengths lengths{attribute, viewport, fontSize};
        ShapeOutline result;
        result.outline = row.outline(lengths);
        result.error = lengths.error();
        return result;
    }
    return std::nullopt;
}

} // namespace easel::svg
