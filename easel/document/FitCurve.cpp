#include "easel/document/FitCurve.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

using Stroke = std::span<const CurvePoint>;

CurvePoint direction(CurvePoint a) {
    const double size = length(a);
    return size > 0 ? (1 / size) * a : CurvePoint{1, 0};
}

std::vector<double> chordParameters(Stroke stroke) {
    std::vector<double> at{0};
    for (std::size_t i = 1; i < stroke.size(); ++i)
        at.push_back(at.back() + length(stroke[i] - stroke[i - 1]));
    for (double& each : at)
        each /= at.back();
    return at;
}

/// The curve between the ends of the stroke, with those directions there, whose handles are of the
/// lengths that come nearest to the points: two linear equations.
Curve leastSquares(Stroke stroke, const std::vector<double>& at, CurvePoint fromStart,
                   CurvePoint fromEnd) {
    const CurvePoint first = stroke.front();
    const CurvePoint last = stroke.back();
    double c00 = 0, c01 = 0, c11 = 0, x0 = 0, x1 = 0;
    for (std::size_t i = 0; i < stroke.size(); ++i) {
        const double t = at[i];
        const double u = 1 - t;
        const double b1 = 3 * u * u * t;
        const double b2 = 3 * u * t * t;
        const CurvePoint a1 = b1 * fromStart;
        const CurvePoint a2 = b2 * fromEnd;
        c00 += dot(a1, a1);
        c01 += dot(a1, a2);
        c11 += dot(a2, a2);
        const CurvePoint rest = stroke[i] - ((u * u * u + b1) * first + (b2 + t * t * t) * last);
        x0 += dot(a1, rest);
        x1 += dot(a2, rest);
    }
    const double determinant = c00 * c11 - c01 * c01;
    const double chord = length(last - first);
    const double shortest = 1e-6 * chord;
    double start = determinant != 0 ? (x0 * c11 - x1 * c01) / determinant : 0;
    double end = determinant != 0 ? (c00 * x1 - c01 * x0) / determinant : 0;
    // Backward or endless handles: a third of the chord, as for a nearly straight piece.
    const double longest = 10 * chord;
    const auto isGood = [&](double handle) { return handle > shortest && handle < longest; };
    if (!isGood(start) || !isGood(end)) start = end = chord / 3;
    return {first, first + start * fromStart, last + end * fromEnd, last};
}

/// Each parameter moved towards the foot of its point on the curve, by one step of Newton's method.
void improve(Stroke stroke, const Curve& curve, std::vector<double>& at) {
    for (std::size_t i = 1; i + 1 < at.size(); ++i) {
        const double t = at[i];
        const CurvePoint away = pointAt(curve, t) - stroke[i];
        const CurvePoint d1 = tangentAt(curve, t);
        const CurvePoint bend0 = curve[2] - 2 * curve[1] + curve[0];
        const CurvePoint bend1 = curve[3] - 2 * curve[2] + curve[1];
        const CurvePoint d2 = 6 * ((1 - t) * bend0 + t * bend1);
        const double slope = dot(d1, d1) + dot(away, d2);
        if (slope != 0) at[i] = std::clamp(t - dot(away, d1) / slope, 0.0, 1.0);
    }
}

struct Worst {
    std::size_t index;
    double distance;
};

Worst worstOf(Stroke stroke, const Curve& curve, const std::vector<double>& at) {
    Worst worst{stroke.size() / 2, 0};
    for (std::size_t i = 1; i + 1 < stroke.size(); ++i) {
        const double distance = length(pointAt(curve, at[i]) - stroke[i]);
        if (distance > worst.distance) worst = {i, distance};
    }
    return worst;
}

/// Each call has fewer points than the one around it, and two points are one curve.
void fit(Stroke stroke, CurvePoint fromStart, CurvePoint fromEnd, double tolerance,
         std::vector<Curve>& curves) {
    constexpr int kImprovements = 4;
    constexpr double kHopeless = 4; ///< Times the tolerance: other parameters will not help.
    if (stroke.size() == 2) {
        const double third = length(stroke[1] - stroke[0]) / 3;
        curves.push_back(
            {stroke[0], stroke[0] + third * fromStart, stroke[1] + third * fromEnd, stroke[1]});
        return;
    }
    std::vector<double> at = chordParameters(stroke);
    Curve curve = leastSquares(stroke, at, fromStart, fromEnd);
    Worst worst = worstOf(stroke, curve, at);
    for (int i = 0;
         i < kImprovements && worst.distance > tolerance && worst.distance < kHopeless * tolerance;
         ++i) {
        improve(stroke, curve, at);
        curve = leastSquares(stroke, at, fromStart, fromEnd);
        worst = worstOf(stroke, curve, at);
    }
    if (worst.distance <= tolerance) {
        curves.push_back(curve);
        return;
    }
    const std::size_t middle = worst.index;
    const CurvePoint back = direction(stroke[middle - 1] - stroke[middle + 1]);
    fit(stroke.subspan(0, middle + 1), fromStart, back, tolerance, curves);
    fit(stroke.subspan(middle), -1 * back, fromEnd, tolerance, curves);
}

} // namespace

std::vector<Curve> fitCurves(std::span<const CurvePoint> given, double tolerance) {
    std::vector<CurvePoint> stroke;
    for (const CurvePoint point : given)
        if (stroke.empty() || length(point - stroke.back()) > 0) stroke.push_back(point);
    std::vector<Curve> curves;
    if (stroke.size() < 2) return curves;
    const CurvePoint start = direction(stroke[1] - stroke[0]);
    const CurvePoint end = direction(stroke[stroke.size() - 2] - stroke.back());
    fit(stroke, start, end, tolerance, curves);
    return curves;
}

} // namespace easel
