#include "bench/OverlayCases.h"

#include "bench/Drawings.h"
#include "bench/Floor.h"
#include "bench/Sitting.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace facetta::bench {
namespace {

constexpr DrawingPlan kAxesPlan{Placement::Clear, 72, 20, 10};
constexpr DrawingPlan kPreviewPlan{Placement::Crossing, 12, 10'000, 10};
constexpr int kRuns = 5;
/// What a draw is measured by: the plain loop over so many segments. The preview reads as many; for
/// the axes it is only some work that every machine does at its own speed.
constexpr std::size_t kFloorSegments = 100'000;

} // namespace

void OverlayCases::registerAll() {
    registerAxes();
    registerPreview();
}

void OverlayCases::registerAxes() {
    const auto run = [this](benchmark::State& state) {
        Sitting sitting{kAxesPlan.axisCount, easel::MirrorMode::Selection};
        sitting.open(makeDrawing(kAxesPlan));
        const std::uint64_t first = sitting.draw(Take::OwnAllocations).ownAllocations;
        if (first == 0) {
            allocations_ = kNotMeasured;
            return state.SkipWithError("the first draw made no allocations: they are not seen");
        }
        std::uint64_t hostCalls = 0;
        for ([[maybe_unused]] const auto step : state) {
            const Cost counted = sitting.draw(Take::OwnAllocations);
            allocations_ = std::fmax(allocations_, static_cast<double>(counted.ownAllocations));
            const Cost cost = sitting.draw(Take::OwnTime);
            axesSeconds_ = std::fmin(axesSeconds_, cost.ownSeconds);
            floorSeconds_ = std::fmin(floorSeconds_, floorSeconds(kFloorSegments));
            hostCalls = cost.hostCalls;
            state.SetIterationTime(cost.seconds);
        }
        state.counters["own_us"] = 1e6 * axesSeconds_;
        state.counters["calls"] = static_cast<double>(hostCalls);
        state.counters["first_allocations"] = static_cast<double>(first);
        state.counters["allocations"] = allocations_;
    };
    benchmark::RegisterBenchmark("overlay/axes:72", run)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kMicrosecond);
}

void OverlayCases::registerPreview() {
    const auto run = [this](benchmark::State& state) {
        Sitting sitting{kPreviewPlan.axisCount, easel::MirrorMode::Selection};
        sitting.open(makeDrawing(kPreviewPlan));
        std::uint64_t hostCalls = 0;
        AIReal zoom = 0.1F;
        static_cast<void>(sitting.draw(Take::TotalTime)); // reads the art
        for ([[maybe_unused]] const auto step : state) {
            zoom *= 1.001F; // as any change of the view or the axes, it makes the preview anew
            sitting.zoom(zoom);
            const Cost cost = sitting.draw(Take::OwnTime);
            previewSeconds_ = std::fmin(previewSeconds_, cost.ownSeconds);
            floorSeconds_ = std::fmin(floorSeconds_, floorSeconds(kFloorSegments));
            hostCalls = cost.hostCalls;
            state.SetIterationTime(cost.seconds);
        }
        if (hostCalls == 0) {
            previewSeconds_ = kNotMeasured;
            return state.SkipWithError("nothing was drawn");
        }
        state.counters["own_ms"] = 1e3 * previewSeconds_;
        state.counters["calls"] = static_cast<double>(hostCalls);
    };
    benchmark::RegisterBenchmark("preview/axes:12/paths:10000/segments:10", run)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kMillisecond);
}

void OverlayCases::report(Findings& findings) const {
    findings.push_back({"overlay of 72 axes: allocations of a draw but the first", allocations_});
    findings.push_back({"overlay of 72 axes: own time of a draw over floor of 100,000 segments",
                        axesSeconds_ / floorSeconds_});
    findings.push_back(
        {"preview of 10,000 paths, 12 axes, made anew: own time of a draw", 1e3 * previewSeconds_});
    findings.push_back({"preview made anew: own time of a draw over floor of 100,000 segments",
                        previewSeconds_ / floorSeconds_});
}

} // namespace facetta::bench
