#pragma once

#include "host/Types.h"

#include <array>
#include <cmath>

/// Cubic curves in double precision, for what the host itself computes.

namespace easel {

struct CurvePoint {
    double x = 0;
    double y = 0;
    bool operator==(const CurvePoint&) const = default;
};

constexpr CurvePoint operator+(CurvePoint a, CurvePoint b) { return {a.x + b.x, a.y + b.y}; }
constexpr CurvePoint operator-(CurvePoint a, CurvePoint b) { return {a.x - b.x, a.y - b.y}; }
constexpr CurvePoint operator*(double factor, CurvePoint p) { return {factor * p.x, factor * p.y}; }

constexpr double dot(CurvePoint a, CurvePoint b) { return a.x * b.x + a.y * b.y; }
[[nodiscard]] inline double length(CurvePoint way) { return std::hypot(way.x, way.y); }

[[nodiscard]] constexpr CurvePoint curvePoint(AIRealPoint point) noexcept {
    return {point.h, point.v};
}
/// Rounded once to the host's precision.
[[nodiscard]] constexpr AIRealPoint realPoint(CurvePoint point) noexcept {
    return {static_cast<AIReal>(point.x), static_cast<AIReal>(point.y)};
}

[[nodiscard]] constexpr bool same(AIRealPoint a, AIRealPoint b) noexcept {
    return a.h == b.h && a.v == b.v;
}

/// Four control points; the curve runs from the first to the last as t goes from 0 to 1.
using Curve = std::array<CurvePoint, 4>;

[[nodiscard]] CurvePoint pointAt(const Curve& curve, double t) noexcept;
/// The derivative B'(t), not normalised.
[[nodiscard]] CurvePoint tangentAt(const Curve& curve, double t) noexcept;
/// The parts before and after t.
[[nodiscard]] std::array<Curve, 2> splitAt(const Curve& curve, double t) noexcept;

struct NearestPoint {
    double t;
    double distance;
};
[[nodiscard]] NearestPoint nearestPoint(const Curve& curve, CurvePoint point) noexcept;

/// Smallest and largest value of one coordinate over the whole curve.
struct Extent {
    double low;
    double high;
};
[[nodiscard]] Extent extentOf(double p0, double p1, double p2, double p3) noexcept;

} // namespace easel
