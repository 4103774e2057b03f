#pragma once

/// One edit in a live layer: the plug-in makes all copies anew.

#include "bench/Findings.h"

namespace facetta::bench {

class LiveLayerCase {
public:
    void registerAll();
    void report(Findings& findings) const;

private:
    double ownSeconds_ = kNotMeasured;
    double totalSeconds_ = kNotMeasured;
    double bareSeconds_ = kNotMeasured;
    double floorSeconds_ = kNotMeasured; ///< Of a plain loop over the segments of all copies.
};

} // namespace facetta::bench
