#include "easel/document/Bezier.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace easel {
namespace {

CurvePoint mix(CurvePoint a, CurvePoint b, double t) {
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

/// Where the derivative of a cubic with these values vanishes, in 0..1. Returns how many.
int extremes(double p0, double p1, double p2, double p3, std::span<double, 2> roots) {
    // B'(t) / 3 = a t^2 + b t + c
    const double a = p3 - 3 * p2 + 3 * p1 - p0;
    const double b = 2 * (p2 - 2 * p1 + p0);
    const double c = p1 - p0;
    int count = 0;
    const auto add = [&](double t) {
        if (t > 0 && t < 1) roots[static_cast<std::size_t>(count++)] = t;
    };
    const double discriminant = b * b - 4 * a * c;
    if (discriminant < 0) return 0;
    // The form that does not cancel; a may be 0, and so may q.
    const double q = -(b + std::copysign(std::sqrt(discriminant), b)) / 2;
    if (a != 0) add(q / a);
    if (q != 0) add(c / q);
    return count;
}

} // namespace

CurvePoint pointAt(const Curve& curve, double t) noexcept { return splitAt(curve, t)[0][3]; }

CurvePoint tangentAt(const Curve& curve, double t) noexcept {
    const double s = 1 - t;
    const auto along = [s, t](double p0, double p1, double p2, double p3) {
        return 3 * (s * s * (p1 - p0) + 2 * s * t * (p2 - p1) + t * t * (p3 - p2));
    };
    return {along(curve[0].x, curve[1].x, curve[2].x, curve[3].x),
            along(curve[0].y, curve[1].y, curve[2].y, curve[3].y)};
}

std::array<Curve, 2> splitAt(const Curve& curve, double t) noexcept {
    const CurvePoint a = mix(curve[0], curve[1], t);
    const CurvePoint b = mix(curve[1], curve[2], t);
    const CurvePoint c = mix(curve[2], curve[3], t);
    const CurvePoint ab = mix(a, b, t);
    const CurvePoint bc = mix(b, c, t);
    const CurvePoint middle = mix(ab, bc, t);
    return {Curve{curve[0], a, ab, middle}, Curve{middle, bc, c, curve[3]}};
}

NearestPoint nearestPoint(const Curve& curve, CurvePoint point) noexcept {
    constexpr int kSamples = 32;
    const auto away = [&](double t) { return length(pointAt(curve, t) - point); };
    NearestPoint best{0, away(0)};
    for (int i = 1; i <= kSamples; ++i) {
        const double t = double(i) / kSamples;
        if (const double found = away(t); found < best.distance) best = {t, found};
    }
    // Around the best sample the distance has one minimum: narrow it down by thirds.
    double low = std::max(0.0, best.t - 1.0 / kSamples);
    double high = std::min(1.0, best.t + 1.0 / kSamples);
    while (high - low > 1e-10) { // each round keeps two thirds, so it ends
        const double third = (high - low) / 3;
        if (away(low + third) < away(high - third))
            high -= third;
        else
            low += third;
    }
    const double t = (low + high) / 2;
    if (const double found = away(t); found < best.distance) best = {t, found};
    return best;
}

Extent extentOf(double p0, double p1, double p2, double p3) noexcept {
    Extent extent{std::min(p0, p3), std::max(p0, p3)};
    if (std::min(p1, p2) >= extent.low && std::max(p1, p2) <= extent.high) return extent;
    std::array<double, 2> roots{};
    const int count = extremes(p0, p1, p2, p3, roots);
    for (int i = 0; i < count; ++i) {
        const double t = roots[static_cast<std::size_t>(i)];
        const double s = 1 - t;
        const double value =
            s * s * s * p0 + 3 * s * s * t * p1 + 3 * s * t * t * p2 + t * t * t * p3;
        extent = {std::min(extent.low, value), std::max(extent.high, value)};
    }
    return extent;
}

} // namespace easel
