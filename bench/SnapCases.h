#pragma once

/// Dragging an axis over art that it may snap to.

#include "bench/Findings.h"

#include <cstddef>
#include <limits>

namespace facetta::bench {

/// One drawing under a dragged axis.
struct SnapCase {
    int segments = 0;      ///< of each of the paths
    double ownSeconds = 0; ///< of one message, inside the plug-in itself
    double totalSeconds = 0;
    double boundsSeconds = 0; ///< of a loop that asks the host for the bounds of the same art
    double examinedShare = 0; ///< of all curves, those whose feet were computed
    bool measured = false;
};

class SnapCases {
public:
    void registerAll();
    void judge(Findings& findings) const;

private:
    SnapCase few_{.segments = 10};
    SnapCase many_{.segments = 100};
    double footSeconds_ = std::numeric_limits<double>::infinity(); ///< for one curve
};

} // namespace facetta::bench
