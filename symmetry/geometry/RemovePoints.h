#pragma once

/// Removing the anchors that mirroring left on the axes.

#include "symmetry/geometry/JoinPieces.h"
#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"

#include <vector>

namespace facetta {

/// `shape` without the anchors on any of the 2N rays of `axes` whose removal leaves the curve where
/// it is, to 0.01 points: straight runs, and smooth curves that were split there. The ends of an
/// open path stay, and so do the last two anchors of a closed one.
[[nodiscard]] PathShape removeRedundantAxisPoints(PathShape shape, const PageAxes& axes);

/// Removes the redundant joints of new contours, by the same measure, reusing its storage.
class JointRemover {
public:
    void removeFrom(Contour& contour);

private:
    std::vector<double> deviations_;
};

} // namespace facetta
