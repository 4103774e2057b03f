#include "symmetry/geometry/Geometry.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <cmath>

namespace facetta {

Vector direction(double angle) { return {std::cos(angle), std::sin(angle)}; }

double normaliseAngle(double angle) {
    if (!std::isfinite(angle)) return 0.0;
    if (std::abs(angle) > kLargestSteppedAngle) angle = std::remainder(angle, kTwoPi);
    while (angle < 0.0) // ends: the magnitude is limited, and each step is far above its rounding
        angle += kTwoPi;
    while (angle >= kTwoPi) // also after the loop above: -1e-17 + 2 pi rounds to 2 pi
        angle -= kTwoPi;
    return angle;
}

Matrix compose(const Matrix& first, const Matrix& second) {
    const Vector columnX = apply(second, Vector{first.a, first.b});
    const Vector columnY = apply(second, Vector{first.c, first.d});
    const Point translation = apply(second, Point{first.tx, first.ty});
    return {columnX.x, columnX.y, columnY.x, columnY.y, translation.x, translation.y};
}

namespace {

/// The linear map with the columns (a, b) and (c, d), with `centre` as its fixed point.
Matrix aboutCentre(Point centre, double a, double b, double c, double d) {
    return {a,
            b,
            c,
            d,
            centre.x - (a * centre.x + c * centre.y),
            centre.y - (b * centre.x + d * centre.y)};
}

} // namespace

Matrix rotationAbout(Point centre, double angle) {
    if (angle == 0.0) return {};
    const Vector u = direction(angle);
    return aboutCentre(centre, u.x, -u.y, u.y, u.x);
}

Matrix reflectionAcross(Point centre, double lineAngle) {
    // rotate(-angle), negate y, rotate(angle): the products are the cosine and sine of twice it.
    const Vector u = direction(lineAngle);
    const double cosTwice = u.x * u.x - u.y * u.y;
    const double sinTwice = 2.0 * u.x * u.y;
    return aboutCentre(centre, cosTwice, sinTwice, sinTwice, -cosTwice);
}

Point rotateAbout(Point point, Point centre, double angle) {
    if (angle == 0.0) return point;
    const Vector u = direction(angle);
    const Vector offset = point - centre;
    return centre + Vector{u.x * offset.x + u.y * offset.y, u.x * offset.y - u.y * offset.x};
}

Point reflectAcross(Point point, Point centre, double lineAngle) {
    const Vector u = direction(lineAngle);
    const Vector offset = point - centre;
    const double along = dot(u, offset);
    const double normal = -cross(u, offset);
    return centre + Vector{along * u.x - normal * u.y, along * u.y + normal * u.x};
}

Point nearestPoint(const LineSegment& segment, Point point) {
    const Vector whole = segment.end - segment.start;
    const double squaredLength = dot(whole, whole);
    if (squaredLength == 0.0) return segment.start;
    const double t = dot(point - segment.start, whole) / squaredLength;
    return lerp(segment.start, segment.end, std::clamp(t, 0.0, 1.0));
}

Point projectOntoRay(Point point, Point start, Vector towards) {
    return start + std::max(0.0, dot(point - start, towards)) * towards;
}

} // namespace facetta
