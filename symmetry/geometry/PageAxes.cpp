#include "symmetry/geometry/PageAxes.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace facetta {

double rayAngle(const PageAxes& axes, int k) {
    assert(axes.axisCount >= kFewestAxes);
    return normaliseAngle(axes.angle - k * sectorAngle(axes));
}

LineSegment raySegment(const PageAxes& axes, int k) {
    return {axes.origin, axes.origin + kRayLength * direction(rayAngle(axes, k))};
}

int sectorIndexOf(const PageAxes& axes, Point point) {
    assert(axes.axisCount >= kFewestAxes);
    double angle = std::atan2(point.y - axes.origin.y, point.x - axes.origin.x);
    if (angle < 0.0) angle += kTwoPi;
    const double fromFirstAxis = normaliseAngle(angle - axes.angle);
    // An angle just below 2 pi can give a quotient that rounds up to 2N.
    return std::min(static_cast<int>(fromFirstAxis / sectorAngle(axes)), sectorCount(axes) - 1);
}

Matrix foldMatrix(const PageAxes& axes, int sector) {
    const double w = sectorAngle(axes);
    const Matrix rotation = rotationAbout(axes.origin, sector * w);
    if (sector % 2 == 0) return rotation;
    return compose(rotation, reflectionAcross(axes.origin, axes.angle + w / 2.0));
}

Point foldIntoSector0(const PageAxes& axes, Point point) {
    const int sector = sectorIndexOf(axes, point);
    const double w = sectorAngle(axes);
    const Point turned = rotateAbout(point, axes.origin, sector * w);
    return sector % 2 == 0 ? turned : reflectAcross(turned, axes.origin, axes.angle + w / 2.0);
}

Matrix stepRotation(const PageAxes& axes, int steps) {
    return rotationAbout(axes.origin, steps * 2.0 * sectorAngle(axes));
}

Matrix rayReflection(const PageAxes& axes, int k) {
    return reflectionAcross(axes.origin, rayAngle(axes, k));
}

std::vector<Matrix> imageTransforms(const PageAxes& axes, Images images) {
    std::vector<Matrix> transforms;
    if (images == Images::None) return transforms;
    const Matrix reflection = rayReflection(axes, 0);
    if (images == Images::All) transforms.push_back(reflection);
    for (int step = 1; step < axes.axisCount; ++step) {
        const Matrix rotation = stepRotation(axes, step);
        transforms.push_back(rotation);
        if (images == Images::All) transforms.push_back(compose(reflection, rotation));
    }
    return transforms;
}

} // namespace facetta
