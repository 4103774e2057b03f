#pragma once

/// The whole program, start to exit, and the memory that mirroring takes.

#include "bench/Findings.h"

namespace facetta::bench {

class ProgramCases {
public:
    void registerAll();
    void report(Findings& findings) const;

private:
    double documentBytes_ = kNotMeasured; ///< Heap of the mirrored drawing, its undo steps gone.
    double mirroringPeak_ = kNotMeasured; ///< Most memory beyond what there was before the drawing.
    double programSeconds_ = kNotMeasured;
    double programPeak_ = kNotMeasured;
    double plainSeconds_ = kNotMeasured;
};

} // namespace facetta::bench
