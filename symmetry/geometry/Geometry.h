#pragma once

/// Points, directions and affine maps of the plane: plain values and free functions.
///
/// All coordinates are 64-bit reals in points. y grows UPWARDS and angles are radians,
/// counter-clockwise from the positive x axis, unless a name says otherwise.

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace facetta {

constexpr double kPi = std::numbers::pi;
constexpr double kTwoPi = 2.0 * std::numbers::pi;

/// A difference of two positions, in points.
struct Vector {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Vector&) const = default;
};

/// A position in points; the name of a variable says in which space: document or artwork.
struct Point {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Point&) const = default;
};

constexpr Vector operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
constexpr Point operator+(Point p, Vector v) { return {p.x + v.x, p.y + v.y}; }
constexpr Point operator-(Point p, Vector v) { return {p.x - v.x, p.y - v.y}; }
constexpr Vector operator+(Vector a, Vector b) { return {a.x + b.x, a.y + b.y}; }
constexpr Vector operator-(Vector a, Vector b) { return {a.x - b.x, a.y - b.y}; }
constexpr Vector operator-(Vector v) { return {-v.x, -v.y}; }
constexpr Vector operator*(double factor, Vector v) { return {factor * v.x, factor * v.y}; }

/// Scalar product.
[[nodiscard]] constexpr double dot(Vector a, Vector b) { return a.x * b.x + a.y * b.y; }

/// Area of the parallelogram of `a` and `b`; positive when `b` points to the left of `a`.
[[nodiscard]] constexpr double cross(Vector a, Vector b) { return a.x * b.y - a.y * b.x; }

/// The point at `t` of the way from `a` to `b`; exactly `a` at 0.
[[nodiscard]] constexpr Point lerp(Point a, Point b, double t) { return a + t * (b - a); }

/// Of differences of coordinates that the host can store: their squares neither overflow nor vanish
/// in 64 bits.
[[nodiscard]] inline double length(Vector v) { return std::sqrt(dot(v, v)); }
[[nodiscard]] inline double distance(Point a, Point b) { return length(b - a); }

/// The unit vector at `angle` radians, counter-clockwise from the positive x axis.
[[nodiscard]] Vector direction(double angle);

/// `angle` brought into [0, 2 pi) by adding or subtracting 2 pi. An angle in range returns bit for
/// bit. Magnitudes above 10,000 are first reduced by the remainder, so that the steps stay few;
/// what is not finite reads as 0.
[[nodiscard]] double normaliseAngle(double angle);

/// An affine map, written as its six numbers: x' = a x + c y + tx, y' = b x + d y + ty.
struct Matrix {
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double tx = 0.0;
    double ty = 0.0;

    bool operator==(const Matrix&) const = default;
};

[[nodiscard]] constexpr Vector apply(const Matrix& m, Vector v) {
    return {m.a * v.x + m.c * v.y, m.b * v.x + m.d * v.y};
}
[[nodiscard]] constexpr Point apply(const Matrix& m, Point p) {
    return {m.a * p.x + m.c * p.y + m.tx, m.b * p.x + m.d * p.y + m.ty};
}

/// The map that applies `first` and then `second`.
[[nodiscard]] Matrix compose(const Matrix& first, const Matrix& second);

/// Whether the map turns shapes over, as a reflection does.
[[nodiscard]] constexpr bool mirrors(const Matrix& m) { return m.a * m.d - m.b * m.c < 0.0; }

/// The rotation about `centre` by `angle` radians, CLOCKWISE for a positive angle; the identity,
/// exactly, for an angle of 0.
[[nodiscard]] Matrix rotationAbout(Point centre, double angle);

/// The reflection across the line through `centre` at direction `lineAngle`.
[[nodiscard]] Matrix reflectionAcross(Point centre, double lineAngle);

/// `point` turned about `centre` by `angle` radians, CLOCKWISE (y up) for a positive angle: (1, 0)
/// about the origin by pi/2 gives (0, -1). An angle of exactly 0 returns `point` bit for bit.
[[nodiscard]] Point rotateAbout(Point point, Point centre, double angle);

/// `point` reflected across the line through `centre` at direction `lineAngle`.
[[nodiscard]] Point reflectAcross(Point point, Point centre, double lineAngle);

/// A piece of a straight line.
struct LineSegment {
    Point start;
    Point end;
};

/// The point of `segment` nearest to `point`; the start when the segment has no length.
[[nodiscard]] Point nearestPoint(const LineSegment& segment, Point point);

/// The point of the half-line from `start` towards the unit vector `towards` nearest to `point`.
[[nodiscard]] Point projectOntoRay(Point point, Point start, Vector towards);

/// The nearest 32-bit value, as the host stores coordinates; values beyond its range become the
/// largest finite one, so that no infinity enters a document.
[[nodiscard]] constexpr float narrow(double value) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

/// The nearest point that the host can store.
[[nodiscard]] constexpr Point rounded(Point point) { return {narrow(point.x), narrow(point.y)}; }

} // namespace facetta
