#include "symmetry/geometry/Bezier.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace facetta {

Point evaluate(const Cubic& curve, double t) {
    const Vector d0 = curve.p1 - curve.p0;
    const Vector d1 = (curve.p2 - curve.p1) - d0;
    const Vector d2 = (curve.p3 - curve.p2) - d0 - 2.0 * d1;
    return curve.p0 + t * (3.0 * d0 + t * (3.0 * d1 + t * d2));
}

SplitCubic split(const Cubic& curve, double t) {
    const Point p01 = lerp(curve.p0, curve.p1, t);
    const Point p12 = lerp(curve.p1, curve.p2, t);
    const Point p23 = lerp(curve.p2, curve.p3, t);
    const Point p012 = lerp(p01, p12, t);
    const Point p123 = lerp(p12, p23, t);
    const Point middle = lerp(p012, p123, t);
    return {{curve.p0, p01, p012, middle}, {middle, p123, p23, curve.p3}};
}

Cubic between(const Cubic& curve, double from, double to) {
    const Cubic head = to == 1.0 ? curve : split(curve, to).before;
    if (from == 0.0) return head;
    return split(head, to > 0.0 ? from / to : 0.0).after;
}

double evaluate(const BernsteinCubic& function, double t) {
    const auto [b0, b1, b2, b3] = function;
    const double d0 = b1 - b0;
    const double d1 = (b2 - b1) - d0;
    const double d2 = (b3 - b2) - d0 - 2.0 * d1;
    return b0 + t * (3.0 * d0 + t * (3.0 * d1 + t * d2));
}

namespace {

double slope(const BernsteinCubic& function, double t) {
    const auto [b0, b1, b2, b3] = function;
    const double d0 = b1 - b0;
    const double d1 = (b2 - b1) - d0;
    const double d2 = (b3 - b2) - d0 - 2.0 * d1;
    return 3.0 * (d0 + t * (2.0 * d1 + t * d2));
}

/// The ends of the stretches of [0, 1] on which `function` only rises or only falls.
struct Stretches {
    std::array<double, 4> ends{};
    int count = 0;

    void add(double t) { ends[static_cast<std::size_t>(count++)] = t; }
};

Stretches monotoneStretches(const BernsteinCubic& function) {
    const auto [b0, b1, b2, b3] = function;
    Stretches stretches;
    stretches.add(0.0);
    // The slope over 3 is c + 2 b t + a t^2; the root of larger magnitude comes first, so that
    // nothing cancels.
    const double c = b1 - b0;
    const double b = (b2 - b1) - c;
    const double a = (b3 - b2) - c - 2.0 * b;
    const double discriminant = b * b - a * c;
    if (discriminant > 0.0) {
        const double q = -(b + std::copysign(std::sqrt(discriminant), b));
        double first = q / a; // infinite when the slope is linear: then not within (0, 1)
        double second = c / q;
        if (first > second) std::swap(first, second);
        if (first > 0.0 && first < 1.0) stretches.add(first);
        if (second > 0.0 && second < 1.0) stretches.add(second);
    }
    stretches.add(1.0);
    return stretches;
}

/// Newton's method kept inside a bracket. `function` has the sign of `atLow` at `low` and the
/// opposite one at `high`.
double rootBetween(const BernsteinCubic& function, double low, double high, double atLow) {
    constexpr int kMostSteps = 80; // bisection alone would need 53; a triple zero is slower
    constexpr double kSmallestStep = 1e-16; // the spacing of reals below 1
    double t = 0.5 * (low + high);
    for (int step = 0; step < kMostSteps; ++step) {
        const double value = evaluate(function, t);
        if (value == 0.0) break;
        ((value < 0.0) == (atLow < 0.0) ? low : high) = t;
        double next = t - value / slope(function, t);
        if (!(next > low && next < high)) next = 0.5 * (low + high);
        const double moved = std::abs(next - t);
        t = next;
        if (moved <= kSmallestStep) break;
    }
    constexpr double kBeforeEnd = 1.0 - 0.5 * std::numeric_limits<double>::epsilon();
    return std::min(t, kBeforeEnd); // a zero that rounds to the end lies before it
}

} // namespace

Roots signChanges(const BernsteinCubic& function) {
    Roots roots;
    // The function lies within the range of its coefficients.
    const auto [least, most] = std::ranges::minmax(function);
    if (least >= 0.0 || most <= 0.0) return roots;
    // It changes sign no more often than they do (Descartes' rule of signs).
    const auto [b0, b1, b2, b3] = function;
    if (b0 * b3 < 0.0 && !(b0 * b1 < 0.0 && b2 * b3 < 0.0)) {
        roots.values[0] = rootBetween(function, 0.0, 1.0, b0);
        roots.count = 1;
        return roots;
    }
    const Stretches stretches = monotoneStretches(function);
    double lastEnd = 0.0; // the last end of a stretch at which the function is not zero
    double lastValue = 0.0;
    for (int i = 0; i < stretches.count; ++i) {
        const double end = stretches.ends[static_cast<std::size_t>(i)];
        const double value = end == 1.0 ? function[3] : evaluate(function, end); // not rounded
        if (value == 0.0) continue;
        if (lastValue != 0.0 && (value < 0.0) != (lastValue < 0.0))
            roots.values[static_cast<std::size_t>(roots.count++)] =
                rootBetween(function, lastEnd, end, lastValue);
        lastEnd = end;
        lastValue = value;
    }
    return roots;
}

} // namespace facetta
