#pragma once

/// Drawing over the document: the axes again and again, and the preview of art after each change.

#include "bench/Findings.h"

namespace facetta::bench {

class OverlayCases {
public:
    void registerAll();
    void report(Findings& findings) const;

private:
    void registerAxes();
    void registerPreview();

    double allocations_ = kNotMeasured; ///< The most of one draw but the first.
    double axesSeconds_ = kNotMeasured;
    double previewSeconds_ = kNotMeasured;
    double floorSeconds_ = kNotMeasured;
};

} // namespace facetta::bench
