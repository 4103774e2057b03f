#include "tool/HitTest.h"

#include <cmath>

namespace facetta {
namespace {

constexpr double kSectorHandle = 0.5; // between ray 0 and the next

/// Direction `index` sectors counter-clockwise from the first axis.
Vector directionOf(const PageAxes& axes, double index) {
    return direction(axes.angle + index * sectorAngle(axes));
}

} // namespace

AxisHits axesUnder(const PageAxes& axes, Point cursor, double tolerance) {
    constexpr int kEnough = 2;
    const Vector offset = cursor - axes.origin;
    AxisHits hits;
    for (int i = 0; i < axes.axisCount && hits.count < kEnough; ++i) {
        const Vector along = directionOf(axes, i);
        if (std::abs(cross(along, offset)) >= tolerance) continue;
        ++hits.count;
        hits.grabIndex = dot(along, offset) < 0.0 ? axes.axisCount + i : i;
    }
    return hits;
}

bool sectorHandleUnder(const PageAxes& axes, Point cursor, double tolerance) {
    const Vector along = directionOf(axes, kSectorHandle);
    const Vector offset = cursor - axes.origin;
    return dot(along, offset) >= 0.0 && std::abs(cross(along, offset)) < tolerance;
}

ZoneUnder zoneUnder(const PageAxes& axes, Point cursor, double tolerance) {
    const AxisHits hits = axesUnder(axes, cursor, tolerance);
    const bool atOrigin = axes.axisCount == 1 && distance(cursor, axes.origin) < tolerance;
    if (atOrigin || hits.count > 1) return {ToolZone::Origin, hits.grabIndex, false};
    if (hits.count == 1) return {ToolZone::Axis, hits.grabIndex, false};
    if (sectorHandleUnder(axes, cursor, tolerance)) return {ToolZone::Axis, kSectorHandle, true};
    return {};
}

} // namespace facetta
