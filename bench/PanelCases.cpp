#include "bench/PanelCases.h"

#include "bench/Drawings.h"
#include "bench/Sitting.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <string>
#include <vector>

namespace facetta::bench {
namespace {

using door::Dialog;
using door::Key;

constexpr DrawingPlan kPlan{Placement::Clear, 6, 1000, 10};
constexpr int kRuns = 5;

constexpr int kActiveBox = 3;
constexpr int kUpdateButton = 4;
constexpr int kApplyButton = 5;
constexpr int kCancelButton = 6;
constexpr int kCountField = 15;
constexpr int kOverlayBox = 16;
constexpr int kOpacitySlider = 18;
constexpr int kOpacityField = 20;

struct Act {
    const char* name;
    void (*perform)(Dialog& panel);
};

door::SeenItem itemOf(const Dialog& panel, int id) {
    const std::vector<door::SeenItem> items = panel.items();
    return *std::ranges::find(items, id, &door::SeenItem::id);
}

double opacityOf(const Dialog& panel) { return *itemOf(panel, kOpacitySlider).position; }

/// From one end to the other: each time it really changes.
void slide(Dialog& panel) { panel.slide(kOpacitySlider, opacityOf(panel) < 50 ? 80 : 20, 1); }

void click(Dialog& panel, int button) { panel.click(button); }
void countUp(Dialog& panel) { panel.spin(kCountField, true, false); }

/// What mirrors no art.
constexpr Act kActs[] = {
    {"opacity_slider", slide},
    {"opacity_field",
     [](Dialog& panel) { panel.spin(kOpacityField, opacityOf(panel) < 50, false); }},
    {"overlay_off", [](Dialog& panel) { panel.click(kOverlayBox); }},
    {"overlay_on", [](Dialog& panel) { panel.click(kOverlayBox); }},
    // The first time the axes come off the layer.
    {"count_field", countUp},
};

/// What mirrors the layer: over a single path, because mirroring has its own cases and it is the
/// handlers that are measured. The layer carries its axes at the end again. Removing them is not
/// among it: the copies would stay as art, to be mirrored in turn the next time.
constexpr Act kMirroringActs[] = {
    {"active_off", [](Dialog& panel) { click(panel, kActiveBox); }},
    {"update", [](Dialog& panel) { click(panel, kUpdateButton); }},
    {"active_on", [](Dialog& panel) { click(panel, kActiveBox); }},
    {"edit", countUp},
    {"cancel_edit", [](Dialog& panel) { click(panel, kCancelButton); }},
    {"edit_again", countUp},
    {"apply_edit", [](Dialog& panel) { click(panel, kApplyButton); }},
};

/// A layer kept mirrored, with its mask and the panel in view.
class PanelSitting : public Sitting {
public:
    explicit PanelSitting(const DrawingPlan& plan = kPlan)
        : Sitting(plan.axisCount, easel::MirrorMode::Layer) {
        open(makeDrawing(plan));
        apply(Take::TotalTime);
        showPanel();
        usePanel(
            [](Dialog& panel) {
                if (!itemOf(panel, kOverlayBox).on) panel.click(kOverlayBox);
            },
            Take::TotalTime);
        static_cast<void>(draw(Take::TotalTime));
    }
};

/// `slowest` becomes the own time of the slowest of `acts`.
void registerHandlersOver(const char* name, const DrawingPlan& plan, std::span<const Act> acts,
                          double& slowest) {
    const auto run = [=, &slowest](benchmark::State& state) {
        PanelSitting sitting(plan);
        std::vector<double> least(acts.size(), std::numeric_limits<double>::infinity());
        for ([[maybe_unused]] const auto step : state) {
            double seconds = 0;
            for (std::size_t i = 0; i < least.size(); ++i) {
                const Cost cost = sitting.usePanel(acts[i].perform, Take::OwnTime);
                least[i] = std::min(least[i], cost.ownSeconds);
                seconds += cost.seconds;
            }
            state.SetIterationTime(seconds);
        }
        for (std::size_t i = 0; i < least.size(); ++i)
            state.counters[std::string(acts[i].name) + "_us"] = 1e6 * least[i];
        slowest = std::fmin(slowest, *std::ranges::max_element(least));
    };
    benchmark::RegisterBenchmark(name, run)->UseManualTime()->Iterations(kRuns)->Unit(
        benchmark::kMicrosecond);
}

} // namespace

void PanelCases::registerAll() {
    registerHandlers();
    registerSlide();
}

void PanelCases::registerHandlers() {
    registerHandlersOver("panel/handlers", kPlan, kActs, handlerSeconds_);
    registerHandlersOver("panel/mirroring_handlers", {Placement::Clear, kPlan.axisCount, 1, 10},
                         kMirroringActs, mirroringHandlerSeconds_);
}

void PanelCases::registerSlide() {
    const auto run = [this](benchmark::State& state) {
        PanelSitting sitting;
        std::uint64_t hostCalls = 0;
        for ([[maybe_unused]] const auto step : state) {
            const Cost moved = sitting.usePanel(kActs[0].perform, Take::TotalTime);
            const Cost drawn = sitting.draw(Take::TotalTime);
            const double seconds = moved.seconds + drawn.seconds;
            redrawSeconds_ = std::fmin(redrawSeconds_, seconds);
            hostCalls = drawn.hostCalls;
            state.SetIterationTime(seconds);
        }
        if (hostCalls == 0) {
            redrawSeconds_ = kNotMeasured;
            return state.SkipWithError("nothing was drawn");
        }
        state.counters["redraws_a_second"] = 1 / redrawSeconds_;
        state.counters["calls"] = static_cast<double>(hostCalls);
    };
    benchmark::RegisterBenchmark("panel/slide/paths:1000", run)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kMicrosecond);
}

void PanelCases::report(Findings& findings) const {
    findings.push_back({"panel: own time of a handler, the slowest", 1e3 * handlerSeconds_});
    findings.push_back({"panel: own time of a handler that mirrors, over one path, the slowest",
                        1e3 * mirroringHandlerSeconds_});
    findings.push_back({"opacity slid over 1,000 live paths: time until the overlay is drawn",
                        1e3 * redrawSeconds_});
}

} // namespace facetta::bench
