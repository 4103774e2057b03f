#include "tool/snapping/Constraints.h"

#include <cmath>

namespace facetta {

Constrained constrain(Point base, Point target, double constrainDegrees) {
    constexpr double kStep = kPi / 4.0;
    constexpr double kHalfTurnDegrees = 180.0;
    const double zero = constrainDegrees * kPi / kHalfTurnDegrees;
    const double free = directionTo(base, target);
    const double steps = std::floor(normaliseAngle(free - zero) / kStep + 0.5);
    const double angle = steps * kStep + zero;
    const double reach = distance(base, target) * std::cos(free - angle);
    return {angle, base + reach * direction(angle)};
}

double directionTo(Point base, Point target) {
    const Vector offset = target - base;
    return normaliseAngle(std::atan2(offset.y, offset.x));
}

} // namespace facetta
