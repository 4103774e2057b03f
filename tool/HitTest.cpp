#include "tool/HitTest.h"

#include <cmath>

namespace facetta {
namespace {

constexpr double kSectorHandle = 0.5; // between ray 0 and the next

/// Direction `index` half steps counter-clockwise from the first axis.
Vector directionOf(const SymmetryAxes& axes, double index) {
    return direction(axes.angle + index * halfStep(axes));
}

} // namespace

AxisHits axesUnder(const SymmetryAxes& axes, Point cursor, double tolerance) {
    constexpr int kEnough = 2;
    const Vector offset = cursor - originOf(axes);
    AxisHits hits;
    for (int i = 0; i < axes.axisCount && hits.count < kEnough; ++i) {
        const Vector along = directionOf(axes, i);
        if (std::abs(cross(along, offset)) >= tolerance) continue;
        ++hits.count;
        hits.grabIndex = dot(along, offset) < 0.0 ? axes.axisCount + i : i;
    }
    return hits;
}

bool sectorHandleUnder(const SymmetryAxes& axes, Point cursor, double tolerance) {
    const Vector along = directionOf(axes, kSectorHandle);
    const Vector offset = cursor - originOf(axes);
    return dot(along, offset) >= 0.0 && std::abs(cross(along, offset)) < tolerance;
}

ZoneUnder zoneUnder(const SymmetryAxes& axes, Point cursor, double tolerance) {
    const AxisHits hits = axesUnder(axes, cursor, tolerance);
    const bool atOrigin = axes.axisCount == 1 && distance(cursor, originOf(axes)) < tolerance;
    if (atOrigin || hits.count > 1) return {ToolZone::Origin, hits.grabIndex, false};
    if (hits.count == 1) return {ToolZone::Axis, hits.grabIndex, false};
    if (sectorHandleUnder(axes, cursor, tolerance)) return {ToolZone::Axis, kSectorHandle, true};
    return {};
}

} // namespace facetta
