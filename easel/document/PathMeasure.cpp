#include "easel/document/PathMeasure.h"

#include <algorithm>

namespace easel {

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

bool mayReach(const Curve& curve, CurvePoint point, double reach) noexcept {
    const auto [left, right] = std::ranges::minmax(curve, {}, &CurvePoint::x);
    const auto [low, high] = std::ranges::minmax(curve, {}, &CurvePoint::y);
    return point.x >= left.x - reach && point.x <= right.x + reach && point.y >= low.y - reach &&
           point.y <= high.y + reach;
}

} // namespace easel
