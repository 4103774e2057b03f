#include "symmetry/ArtSpace.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIHardSoftSuite.h"
#include "host/suites/AIRealMathSuite.h"

#include <algorithm>
#include <cmath>

namespace facetta {
namespace {

double clampToCanvas(double coordinate) {
    return std::isnan(coordinate) ? 0.0 : std::clamp(coordinate, 0.0, kCanvasSize);
}

} // namespace

AIRealMatrix narrow(const Matrix& matrix) {
    // Six numbers computed in 64 bits and rounded once: composing in the host's 32-bit steps would
    // lose about a hundredth of a point around a far origin.
    AIRealMatrix stored{};
    ai::suites.realMath->AIRealMatrixSet(&stored, narrow(matrix.a), narrow(matrix.b),
                                         narrow(matrix.c), narrow(matrix.d), narrow(matrix.tx),
                                         narrow(matrix.ty));
    return stored;
}

Point soften(Point hard) {
    AIRealPoint from = narrow(hard);
    AIRealPoint to{};
    ai::check(ai::suites.hardSoft->AIRealPointSoften(&from, &to));
    return widen(to);
}

Point harden(Point soft) {
    AIRealPoint from = narrow(soft);
    AIRealPoint to{};
    ai::check(ai::suites.hardSoft->AIRealPointHarden(&from, &to));
    return widen(to);
}

Point clampToCanvas(Point hard) { return {clampToCanvas(hard.x), clampToCanvas(hard.y)}; }

PageAxes pageAxes(const SymmetryAxes& axes) {
    return {.origin = soften(clampToCanvas(hardOriginOf(axes))),
            .angle = normaliseAngle(axes.angle),
            .axisCount = axes.axisCount};
}

} // namespace facetta
