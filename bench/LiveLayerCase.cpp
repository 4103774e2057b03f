#include "bench/LiveLayerCase.h"

#include "bench/Drawings.h"
#include "bench/Floor.h"
#include "bench/Memory.h"
#include "bench/Sitting.h"
#include "easel/document/ArtTree.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AITransformArtSuite.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <optional>
#include <utility>
#include <vector>

namespace facetta::bench {
namespace {

constexpr DrawingPlan kPlan{Placement::Clear, 12, 1'000, 10};
constexpr int kRuns = 3;
constexpr int kImages = 2 * kPlan.axisCount;
constexpr std::size_t kCopiedSegments = kPlan.paths * kPlan.segments * (kImages - 1);

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
    std::vector<AIArtHandle> sources;
    for (const easel::Art* art = document.root().firstChild()->firstChild(); art != nullptr;
         art = art->next())
        sources.push_back(art->handle());
    for (const AIArtHandle source : sources) {
        AIArtHandle behind = source;
        for (int i = 1; i < kImages; ++i) {
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

/// Where each path begins, in order.
std::vector<std::pair<AIReal, AIReal>> startsOf(const easel::Document& document) {
    std::vector<std::pair<AIReal, AIReal>> starts;
    const easel::Art& root = document.root();
    for (const easel::Art* art = &root; art != nullptr; art = easel::nextInPreorder(*art, root))
        if (art->type() == kPathArt)
            starts.emplace_back(art->segments().front().p.h, art->segments().front().p.v);
    std::ranges::sort(starts);
    return starts;
}

/// Moves the anchor. Nothing when the copies of its path, and they alone, did not follow.
std::optional<Cost> editMirrored(Sitting& sitting, const easel::Document& live, Take take) {
    const auto before = startsOf(live);
    const Cost cost = sitting.edit(moveAnchor, take);
    const auto after = startsOf(live);
    std::vector<std::pair<AIReal, AIReal>> moved;
    std::ranges::set_difference(after, before, std::back_inserter(moved));
    if (after.size() != before.size() || std::ssize(moved) != kImages) return {};
    return cost;
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
            const std::optional<Cost> own = editMirrored(sitting, live, Take::OwnTime);
            const std::optional<Cost> total = editMirrored(sitting, live, Take::TotalTime);
            if (!own || !total) {
                ownSeconds_ = totalSeconds_ = kNotMeasured;
                return state.SkipWithError("the copies did not follow the edit");
            }
            ownSeconds_ = std::fmin(ownSeconds_, own->ownSeconds);
            totalSeconds_ = std::fmin(totalSeconds_, total->seconds);
            floorSeconds_ = std::fmin(floorSeconds_, floorSeconds(kCopiedSegments));
            hostCalls = own->hostCalls;

            sitting.openWithoutAxes(makeDrawing(kPlan));
            const Cost bare = sitting.edit(makeCopiesBarely, Take::TotalTime);
            bareSeconds_ = std::fmin(bareSeconds_, bare.seconds);
            state.SetIterationTime(total->seconds);
        }
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

void LiveLayerCase::report(Findings& findings) const {
    findings.push_back(
        {"edit in a live layer of 1,000 paths, 12 axes: own time", 1e3 * ownSeconds_});
    findings.push_back(
        {"edit in a live layer: own time over floor of all copies", ownSeconds_ / floorSeconds_});
    findings.push_back({"edit in a live layer: whole time over that of a bare loop",
                        totalSeconds_ / bareSeconds_});
}

} // namespace facetta::bench
