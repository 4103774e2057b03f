#include "easel/script/ShownAxes.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace easel::script {
namespace {

using Kind = DrawCommand::Kind;
using svg::Point;

Point pointAt(AIPoint pixel) {
    return {static_cast<double>(pixel.h), static_cast<double>(pixel.v)};
}

double cross(Point a, Point b) { return a.x * b.y - a.y * b.x; }

struct Line {
    Point from;
    Point along; ///< To its other end.

    bool operator==(const Line&) const = default;
};

Line lineOf(const DrawCommand& command) {
    const Point from = pointAt(command.points[0]);
    return {from, pointAt(command.points[1]) - from};
}

bool isAxisLine(const DrawCommand& command) {
    return command.kind == Kind::Line && !command.style.dashed;
}

/// Where the first two lines of different directions meet.
std::optional<Point> crossingOf(const DisplayList& list) {
    std::optional<Line> first;
    for (const DrawCommand& command : list) {
        if (!isAxisLine(command)) continue;
        const Line line = lineOf(command);
        if (!first) {
            first = line;
            continue;
        }
        const double sine = cross(first->along, line.along);
        if (std::abs(sine) < 1e-3 * length(first->along) * length(line.along)) continue;
        return first->from + cross(line.from - first->from, line.along) / sine * first->along;
    }
    return std::nullopt;
}

std::optional<Point> originOf(const DisplayList& list) {
    for (const DrawCommand& command : list)
        if (command.kind == Kind::Ellipse)
            return 0.5 * (pointAt(command.points[0]) + pointAt(command.points[1]));
    return crossingOf(list);
}

/// Counter-clockwise as seen, though y runs down.
double degreesOf(Point direction) {
    const double degrees = std::atan2(-direction.y, direction.x) * 180.0 / std::numbers::pi;
    return degrees < 0 ? degrees + 360.0 : degrees;
}

/// The triangle stands with two corners on the ray and points into the sector with the third, the
/// middle one. Nothing unless that lies counter-clockwise of the ray.
std::optional<Point> firstRay(const DrawCommand& command, Point origin) {
    constexpr double kLargestTriangle = 16; // pixels; larger ones are the mask's
    if (command.kind != Kind::Polygon || command.points.size() != 3) return std::nullopt;
    const Point first = pointAt(command.points[0]);
    const Point last = pointAt(command.points[2]);
    if (length(last - first) > kLargestTriangle) return std::nullopt;
    const Point ray = 0.5 * (first + last) - origin;
    const Point tip = pointAt(command.points[1]) - origin;
    if (cross(ray, tip) >= 0) return std::nullopt;
    return ray;
}

/// The direction of the line nearest to `ray`: lines are long, and so tell it better.
Point sharpened(Point ray, const std::vector<Line>& lines) {
    Point best = ray;
    double leastSine = 0.1;
    for (const Line& line : lines) {
        const double scale = length(ray) * length(line.along);
        const double sine = std::abs(cross(ray, line.along)) / scale;
        if (sine >= leastSine) continue;
        leastSine = sine;
        const bool backwards = ray.x * line.along.x + ray.y * line.along.y < 0;
        best = (backwards ? -1.0 : 1.0) * line.along;
    }
    return best;
}

} // namespace

bool passesThrough(const DrawCommand& command, Point point) {
    constexpr double kRounding = 1.5; // pixels
    const Line line = lineOf(command);
    const double size = length(line.along);
    if (size < 1) return false;
    const double apart = std::abs(cross(line.along, point - line.from)) / size;
    return apart <= kRounding * (1 + length(point - line.from) / size);
}

std::optional<ShownAxes> shownAxes(const DisplayList& list) {
    const std::optional<Point> origin = originOf(list);
    if (!origin) return std::nullopt;
    std::vector<Line> lines;
    for (const DrawCommand& command : list) {
        if (!isAxisLine(command) || !passesThrough(command, *origin)) continue;
        // A broader line of another colour may lie below each.
        const Line line = lineOf(command);
        if (std::ranges::find(lines, line) == lines.end()) lines.push_back(line);
    }
    if (lines.empty()) return std::nullopt;
    ShownAxes axes{static_cast<int>(lines.size()), *origin, std::nullopt};
    for (const DrawCommand& command : list) {
        const std::optional<Point> ray = firstRay(command, *origin);
        if (ray && !axes.angleDegrees) axes.angleDegrees = degreesOf(sharpened(*ray, lines));
    }
    return axes;
}

} // namespace easel::script
