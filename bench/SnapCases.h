#pragma once

/// Dragging an axis over art that it may snap to.

#include "bench/Findings.h"

namespace facetta::bench {

/// One drawing under a dragged axis.
struct SnapCase {
    int segments = 0;                 ///< of each of the paths
    double ownSeconds = kNotMeasured; ///< of one message, inside the plug-in itself
    double totalSeconds = kNotMeasured;
    double boundsSeconds =
        kNotMeasured; ///< of a loop that asks the host for the bounds of the same art
    double examinedShare = kNotMeasured; ///< of all curves, those whose feet were computed
};

class SnapCases {
public:
    void registerAll();
    void report(Findings& findings) const;

private:
    SnapCase few_{.segments = 10};
    SnapCase many_{.segments = 100};
    double footSeconds_ = kNotMeasured;   ///< for one curve
    double sampleSeconds_ = kNotMeasured; ///< for 64 samples of one
};

} // namespace facetta::bench
