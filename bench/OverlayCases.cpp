#include "bench/OverlayCases.h"

#include "bench/Drawings.h"
#include "bench/Sitting.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace facetta::bench {
namespace {

constexpr DrawingPlan kAxesPlan{Placement::Clear, 72, 20, 10};
constexpr DrawingPlan kPreviewPlan{Placement::Crossing, 12, 10'000, 10};
constexpr int kRuns = 5;

/// A quarter of the time between two pictures of a screen that shows 60 a second.
constexpr double kWantedPreviewMilliseconds = 4;

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
        std::uint64_t hostCalls = 0;
        double ownSeconds = std::numeric_limits<double>::infinity();
        for ([[maybe_unused]] const auto step : state) {
            allocations_ =
                std::max(allocations_, sitting.draw(Take::OwnAllocations).ownAllocations);
            const Cost cost = sitting.draw(Take::OwnTime);
            ownSeconds = std::min(ownSeconds, cost.ownSeconds);
            hostCalls = cost.hostCalls;
            state.SetIterationTime(cost.seconds);
        }
        axesMeasured_ = true;
        state.counters["own_us"] = 1e6 * ownSeconds;
        state.counters["calls"] = static_cast<double>(hostCalls);
        state.counters["first_allocations"] = static_cast<double>(first);
        state.counters["allocations"] = static_cast<double>(allocations_);
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
            previewSeconds_ = std::min(previewSeconds_, cost.ownSeconds);
            hostCalls = cost.hostCalls;
            state.SetIterationTime(cost.seconds);
        }
        previewMeasured_ = true;
        state.counters["own_ms"] = 1e3 * previewSeconds_;
        state.counters["calls"] = static_cast<double>(hostCalls);
    };
    benchmark::RegisterBenchmark("preview/axes:12/paths:10000/segments:10", run)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kMillisecond);
}

void OverlayCases::judge(Findings& findings) const {
    if (axesMeasured_)
        findings.push_back({"overlay of 72 axes: allocations of a draw but the first", 0,
                            static_cast<double>(allocations_), ""});
    if (previewMeasured_)
        findings.push_back({"preview of 10,000 paths, 12 axes, made anew: own time of a draw",
                            kWantedPreviewMilliseconds, 1e3 * previewSeconds_, "ms"});
}

} // namespace facetta::bench
