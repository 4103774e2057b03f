#include "symmetry/geometry/SymmetryAxes.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace facetta {

double halfStep(const SymmetryAxes& axes) {
    assert(axes.axisCount >= kFewestAxes);
    return kPi / axes.axisCount;
}

double rayAngle(const SymmetryAxes& axes, int k) {
    return normaliseAngle(axes.angle - k * halfStep(axes));
}

LineSegment raySegment(const SymmetryAxes& axes, int k) {
    const Point origin = originOf(axes);
    return {origin, origin + kRayLength * direction(rayAngle(axes, k))};
}

int sectorIndexOf(const SymmetryAxes& axes, Point point) {
    double angle = std::atan2(point.y - axes.originY, point.x - axes.originX);
    if (angle < 0.0) angle += kTwoPi;
    const double fromFirstAxis = normaliseAngle(angle - normaliseAngle(axes.angle));
    // An angle just below 2 pi can give a quotient that rounds up to 2N.
    return std::min(static_cast<int>(fromFirstAxis / halfStep(axes)), sectorCount(axes) - 1);
}

Matrix foldMatrix(const SymmetryAxes& axes, int sector) {
    const Point origin = originOf(axes);
    const double w = halfStep(axes);
    const Matrix rotation = rotationAbout(origin, sector * w);
    if (sector % 2 == 0) return rotation;
    return compose(rotation, reflectionAcross(origin, axes.angle + w / 2.0));
}

Point foldIntoSector0(const SymmetryAxes& axes, Point point) {
    const int sector = sectorIndexOf(axes, point);
    const Point origin = originOf(axes);
    const double w = halfStep(axes);
    const Point turned = rotateAbout(point, origin, sector * w);
    return sector % 2 == 0 ? turned : reflectAcross(turned, origin, axes.angle + w / 2.0);
}

Matrix stepRotation(const SymmetryAxes& axes, int steps) {
    return rotationAbout(originOf(axes), steps * 2.0 * halfStep(axes));
}

Matrix rayReflection(const SymmetryAxes& axes, int k) {
    return reflectionAcross(originOf(axes), rayAngle(axes, k));
}

std::vector<Matrix> imageTransforms(const SymmetryAxes& axes, Images images) {
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
