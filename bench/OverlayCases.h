#pragma once

/// Drawing over the document: the axes again and again, and the preview of art after each change.

#include "bench/Findings.h"

#include <cstdint>
#include <limits>

namespace facetta::bench {

class OverlayCases {
public:
    void registerAll();
    void judge(Findings& findings) const;

private:
    void registerAxes();
    void registerPreview();

    std::uint64_t allocations_ = 0; ///< The most of one draw but the first.
    bool axesMeasured_ = false;
    double previewSeconds_ = std::numeric_limits<double>::infinity();
    bool previewMeasured_ = false;
};

} // namespace facetta::bench
