#pragma once

/// The whole program, start to exit, and the memory that mirroring takes.

#include "bench/Findings.h"

#include <limits>

namespace facetta::bench {

class ProgramCases {
public:
    void registerAll();
    void judge(Findings& findings) const;

private:
    double documentBytes_ = 0; ///< Heap that the mirrored drawing holds, its undo steps gone.
    double mirroringPeak_ = 0; ///< Most memory beyond what there was before the drawing.
    double programSeconds_ = std::numeric_limits<double>::infinity();
    double programPeak_ = 0;
    double plainSeconds_ = std::numeric_limits<double>::infinity();
};

} // namespace facetta::bench
