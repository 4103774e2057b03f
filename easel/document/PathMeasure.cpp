#include "easel/document/PathMeasure.h"

namespace easel {
namespace {

double cross(CurvePoint a, CurvePoint b) { return a.x * b.y - a.y * b.x; }

/// Half the integral of x dy - y dx along the curve, exact for cubics.
double areaUnder(const Curve& c) {
    return (6 * cross(c[0], c[1]) + 3 * cross(c[0], c[2]) + cross(c[0], c[3]) +
            3 * cross(c[1], c[2]) + 3 * cross(c[1], c[3]) + 6 * cross(c[2], c[3])) /
           20;
}

} // namespace

std::size_t curveCount(const Art& path) noexcept {
    const std::size_t anchors = path.segments().size();
    if (anchors < 2) return 0;
    return path.content().closed ? anchors : anchors - 1;
}

Curve curveFrom(const Art& path, std::size_t index) noexcept {
    const auto segments = path.segments();
    const AIPathSegment& from = segments[index];
    const bool isLast = index + 1 == segments.size();
    if (isLast && !path.content().closed) {
        const CurvePoint end = curvePoint(from.p);
        return {end, end, end, end};
    }
    const AIPathSegment& to = segments[isLast ? 0 : index + 1];
    return {curvePoint(from.p), curvePoint(from.out), curvePoint(to.in), curvePoint(to.p)};
}

double signedArea(const Art& path) noexcept {
    const auto segments = path.segments();
    if (segments.empty()) return 0;
    double area = 0;
    for (std::size_t i = 0; i < curveCount(path); ++i)
        area += areaUnder(curveFrom(path, i));
    if (!path.content().closed)
        area += cross(curvePoint(segments.back().p), curvePoint(segments.front().p)) / 2;
    return area;
}

double pathLength(const Art& path) noexcept {
    double length = 0;
    for (std::size_t i = 0; i < curveCount(path); ++i)
        length += lengthOf(curveFrom(path, i));
    return length;
}

} // namespace easel
