#pragma once

/// The panel above a drawing with a live layer: what its handlers take by themselves, and how soon
/// the overlay follows the opacity slider.

#include "bench/Findings.h"

namespace facetta::bench {

class PanelCases {
public:
    void registerAll();
    void report(Findings& findings) const;

private:
    void registerHandlers();
    void registerSlide();

    double handlerSeconds_ = kNotMeasured; ///< Own time of the slowest.
    double mirroringHandlerSeconds_ = kNotMeasured;
    double redrawSeconds_ = kNotMeasured;
};

} // namespace facetta::bench
