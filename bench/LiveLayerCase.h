#pragma once

/// One edit in a live layer: the plug-in makes all copies anew.

#include "bench/Findings.h"

#include <limits>

namespace facetta::bench {

class LiveLayerCase {
public:
    void registerAll();
    void judge(Findings& findings) const;

private:
    double ownSeconds_ = std::numeric_limits<double>::infinity();
    double totalSeconds_ = std::numeric_limits<double>::infinity();
    double bareSeconds_ = std::numeric_limits<double>::infinity();
    bool measured_ = false;
};

} // namespace facetta::bench
