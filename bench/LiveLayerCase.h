#pragma once

/// Edits in a live layer, of which the plug-in renews what they have touched, beside a run that
/// makes all copies anew.

#include "bench/Findings.h"

#include <array>

namespace benchmark {
class State;
}

namespace facetta::bench {

class LiveLayerCase {
public:
    void registerAll();
    void report(Findings& findings) const;

private:
    struct Times {
        double ownSeconds = kNotMeasured;
        double seconds = kNotMeasured;
    };
    /// How many paths one edit changes.
    static constexpr std::array kEdited{1, 10, 100};

    void editOnAndOn(benchmark::State& state);

    Times edit_; ///< Of one path.
    std::array<double, kEdited.size()> edited_{kNotMeasured, kNotMeasured, kNotMeasured};
    Times all_; ///< One path edited, all copies made anew.
    double callsBeyond_ = kNotMeasured;
    double bareSeconds_ = kNotMeasured;
    double floorSeconds_ = kNotMeasured; ///< Of a plain loop over the segments of all copies.
    double evenness_ = kNotMeasured;
    double heapGrowth_ = kNotMeasured;
    double stepsAnEdit_ = kNotMeasured;
};

} // namespace facetta::bench
