#include "bench/LiveLayerCase.h"

#include "bench/Drawings.h"
#include "bench/Memory.h"
#include "bench/Sitting.h"
#include "easel/document/ArtTree.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AITransformArtSuite.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace facetta::bench {
namespace {

constexpr DrawingPlan kPlan{Placement::Clear, 12, 1'000, 10};
constexpr int kRuns = 3;
constexpr double kWantedOwnMilliseconds = 5;
constexpr double kWantedOverBare = 1.5;

/// The user moves one anchor.
void moveAnchor(easel::Document& document) {
    easel::Art& layer = *document.root().firstChild();
    layer.firstChild()->write().segments.write().front().p.h += 0.25F;
}

AIRealMatrix turned(double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const auto x = static_cast<double>(kOrigin.h);
    const auto y = static_cast<double>(kOrigin.v);
    const auto narrow = [](double value) { return static_cast<AIReal>(value); };
    return {narrow(c),
            narrow(s),
            narrow(-s),
            narrow(c),
            narrow(x - c * x + s * y),
            narrow(y - s * x - c * y)};
}

/// What no plug-in that keeps a layer mirrored can do without, and nothing else: through the host's
/// suites it duplicates, transforms, tags and locks as many copies.
void makeCopiesBarely(easel::Document& document) {
    const auto& arts = hostSuite<AIArtSuite>(kAIArtSuite, kAIArtSuiteVersion);
    const auto& dictionaries =
        hostSuite<AIDictionarySuite>(kAIDictionarySuite, kAIDictionarySuiteVersion);
    const auto& transforms =
        hostSuite<AITransformArtSuite>(kAITransformArtSuite, kAITransformArtSuiteVersion);
    constexpr ai::int32 kEverything = kTransformObjects | kTransformFillGradients |
                                      kTransformFillPatterns | kTransformStrokePatterns |
                                      kTransformLinkedMasks | kTransformChildren |
                                      kTransformStrokeGradients;
    const AIDictKey tag = dictionaries.Key("BareCopy");
    const int copies = 2 * kPlan.axisCount - 1;

    std::vector<AIArtHandle> sources;
    for (const easel::Art* art = document.root().firstChild()->firstChild(); art != nullptr;
         art = art->next())
        sources.push_back(art->handle());
    for (const AIArtHandle source : sources) {
        AIArtHandle behind = source;
        for (int i = 1; i <= copies; ++i) {
            AIArtHandle copy = nullptr;
            arts.DuplicateArt(source, kPlaceBelow, behind, &copy);
            AIRealMatrix matrix = turned(i * std::numbers::pi / kPlan.axisCount);
            transforms.TransformArt(copy, &matrix, 1.0F, kEverything);
            AIDictionaryRef entries = nullptr;
            arts.GetDictionary(copy, &entries);
            dictionaries.SetIntegerEntry(entries, tag, 1);
            dictionaries.Release(entries);
            arts.SetArtUserAttr(copy, kArtLocked, kArtLocked);
            behind = copy;
        }
    }
}

} // namespace

void LiveLayerCase::registerAll() {
    const auto run = [this](benchmark::State& state) {
        // An edit takes fresh memory, because the history keeps the copies that it replaces. So
        // does the bare loop here: its drawings stay open, and no case before has left memory free.
        forgetPeak();
        Sitting sitting{kPlan.axisCount, easel::MirrorMode::Layer};
        easel::Document& live = sitting.open(makeDrawing(kPlan));
        static_cast<void>(sitting.apply(Take::TotalTime));
        std::uint64_t hostCalls = 0;
        for ([[maybe_unused]] const auto step : state) {
            sitting.activate(live);
            const Cost own = sitting.edit(moveAnchor, Take::OwnTime);
            ownSeconds_ = std::min(ownSeconds_, own.ownSeconds);
            hostCalls = own.hostCalls;
            const Cost total = sitting.edit(moveAnchor, Take::TotalTime);
            totalSeconds_ = std::min(totalSeconds_, total.seconds);

            sitting.openWithoutAxes(makeDrawing(kPlan));
            const Cost bare = sitting.edit(makeCopiesBarely, Take::TotalTime);
            bareSeconds_ = std::min(bareSeconds_, bare.seconds);
            state.SetIterationTime(total.seconds);
        }
        measured_ = true;
        state.counters["own_ms"] = 1e3 * ownSeconds_;
        state.counters["total_ms"] = 1e3 * totalSeconds_;
        state.counters["bare_ms"] = 1e3 * bareSeconds_;
        state.counters["calls"] = static_cast<double>(hostCalls);
    };
    benchmark::RegisterBenchmark("live_layer/axes:12/paths:1000/segments:10", run)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kMillisecond);
}

void LiveLayerCase::judge(Findings& findings) const {
    if (!measured_) return;
    findings.push_back({"edit in a live layer of 1,000 paths, 12 axes: own time",
                        kWantedOwnMilliseconds, 1e3 * ownSeconds_, "ms"});
    findings.push_back({"edit in a live layer: whole time over that of a bare loop",
                        kWantedOverBare, totalSeconds_ / bareSeconds_, "x"});
}

} // namespace facetta::bench
