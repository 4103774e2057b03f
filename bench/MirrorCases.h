#pragma once

/// Mirroring a selection once: how its cost grows with paths, segments and axes, beside the floor.

#include "bench/Drawings.h"
#include "bench/Findings.h"

#include <deque>
#include <functional>
#include <vector>

namespace facetta::bench {

/// One drawing mirrored; of repeated runs the least times, because noise only ever adds.
struct MirrorCase {
    DrawingPlan plan;
    double ownSeconds = kNotMeasured;   ///< Inside the plug-in itself.
    double totalSeconds = kNotMeasured; ///< Of the whole action.
    double floorSeconds = kNotMeasured; ///< Of a plain loop over as many segments as were made.
    std::size_t made = 0;   ///< Segments made; a source that stays as it is is not among them.
    std::size_t copies = 0; ///< Paths in the drawing beyond its sources.
    std::uint64_t hostCalls = 0;
};

class MirrorCases {
public:
    /// Names every case to the benchmark library, which runs them.
    void registerAll();
    void report(Findings& findings) const;

private:
    using Group = std::vector<const MirrorCase*>;

    void add(const DrawingPlan& plan);
    [[nodiscard]] Group group(const std::function<bool(const DrawingPlan&)>& belongs) const;
    void reportOwnTime(Findings& findings, Placement placement) const;
    void reportHostCalls(Findings& findings, Placement placement) const;
    void reportFlatness(Findings& findings, Placement placement) const;
    void reportGrowth(Findings& findings, Placement placement) const;

    std::deque<MirrorCase> cases_; ///< The benchmark library keeps references.
};

} // namespace facetta::bench
