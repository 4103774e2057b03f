#include "easel/paint/Gradient.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {
namespace {

/// How far along the gradient a point lies: 0 at the start, 1 at the end.
double positionAlong(const svg::GradientContent& gradient, Point point) {
    const Point axis = gradient.end - gradient.start;
    const Point from = point - gradient.start;
    if (gradient.kind == svg::GradientContent::Kind::Linear)
        return dot(from, axis) / dot(axis, axis);
    // The circle with centre start + t axis and radius r0 + t (r - r0) that passes through the
    // point; the first circle lies inside the last, so that the larger root is the one.
    const double first = gradient.focalRadius;
    const double growth = gradient.radius - first;
    const double a = dot(axis, axis) - growth * growth;
    const double b = dot(from, axis) + first * growth;
    const double c = dot(from, from) - first * first;
    const double discriminant = std::max(0.0, b * b - a * c);
    return (b - std::sqrt(discriminant)) / a;
}

double spread(svg::GradientContent::Spread kind, double position) {
    using Spread = svg::GradientContent::Spread;
    if (kind == Spread::Repeat) return position - std::floor(position);
    if (kind == Spread::Reflect) return std::abs(std::remainder(position, 2.0));
    return std::clamp(position, 0.0, 1.0);
}

Colour between(const Colour& a, const Colour& b, float part) {
    const auto mix = [&](float from, float to) { return from + part * (to - from); };
    return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), mix(a.alpha, b.alpha)};
}

} // namespace

std::optional<Colour> singleColour(const svg::GradientContent& gradient) {
    if (gradient.stops.empty()) return Colour{0, 0, 0, 0};
    const bool linear = gradient.kind == svg::GradientContent::Kind::Linear;
    const bool pointlike =
        linear ? gradient.start == gradient.end : gradient.radius <= gradient.focalRadius;
    if (pointlike || gradient.stops.size() == 1) return gradient.stops.back().colour;
    return std::nullopt;
}

Colour colourAt(const svg::GradientContent& gradient, Point point) {
    const double position = spread(gradient.spread, positionAlong(gradient, point));
    const auto& stops = gradient.stops;
    const auto after = std::ranges::upper_bound(stops, position, {}, &svg::GradientStop::offset);
    if (after == stops.begin()) return stops.front().colour;
    if (after == stops.end()) return stops.back().colour;
    const svg::GradientStop& before = *std::prev(after);
    const double part = (position - before.offset) / (after->offset - before.offset);
    return between(before.colour, after->colour, static_cast<float>(part));
}

} // namespace easel::paint
