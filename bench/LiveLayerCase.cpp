#include "bench/LiveLayerCase.h"

#include "bench/Drawings.h"
#include "bench/Floor.h"
#include "bench/Memory.h"
#include "bench/Sitting.h"
#include "easel/document/ArtTree.h"
#include "easel/document/Dictionary.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AITransformArtSuite.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <numbers>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace facetta::bench {
namespace {

constexpr DrawingPlan kPlan{Placement::Clear, 12, 1'000, 10};
constexpr int kRuns = 3;
constexpr int kImages = 2 * kPlan.axisCount;
constexpr int kObjects = kPlan.paths * kImages + 1; ///< With the layer's group.
constexpr double kCallsPerObject = 3;
constexpr std::size_t kCopiedSegments = kPlan.paths * kPlan.segments * (kImages - 1);

using Edit = std::function<void(easel::Document&)>;

/// The user moves one anchor of each of the first `paths` sources.
Edit moveAnchors(int paths) {
    return [paths](easel::Document& document) {
        easel::Art* art = document.root().firstChild()->firstChild();
        for (int moved = 0; moved < paths; art = art->next()) {
            if (art->has(kArtLocked)) continue; // a copy
            art->write().segments.write().front().p.h += 0.25F;
            ++moved;
        }
    };
}

/// One anchor, in a layer of which nobody knows since when its copies fit.
void moveAnchorInDoubt(easel::Document& document) {
    moveAnchors(1)(document);
    const easel::Value* const axes =
        document.root().firstChild()->dictionary().find(easel::internKey("FacettaFT"));
    std::get<easel::Ref<easel::Dictionary>>(*axes)->set(easel::internKey("ts"), ai::int32{-1});
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

/// Nothing when the copies of the edited paths, and they alone, did not follow.
std::optional<Cost> editMirrored(Sitting& sitting, const easel::Document& live, int paths,
                                 const Edit& edit, Take take) {
    const auto before = startsOf(live);
    const Cost cost = sitting.edit(edit, take);
    const auto after = startsOf(live);
    std::vector<std::pair<AIReal, AIReal>> moved;
    std::ranges::set_difference(after, before, std::back_inserter(moved));
    if (after.size() != before.size() || std::ssize(moved) != paths * kImages) return {};
    return cost;
}

/// What one path alone on a layer costs when it is edited.
std::uint64_t callsOfOnePath() {
    constexpr DrawingPlan kOne{Placement::Clear, kPlan.axisCount, 1, kPlan.segments};
    Sitting sitting{kPlan.axisCount, easel::MirrorMode::Layer};
    easel::Document& live = sitting.open(makeDrawing(kOne));
    static_cast<void>(sitting.apply(Take::TotalTime));
    const auto cost = editMirrored(sitting, live, 1, moveAnchors(1), Take::TotalTime);
    return cost ? cost->hostCalls : 0;
}

} // namespace

void LiveLayerCase::registerAll() {
    const auto run = [this](benchmark::State& state) {
        const auto alone = static_cast<double>(callsOfOnePath());
        // An edit takes fresh memory, because the history keeps the copies that it replaces. So
        // does the bare loop here: its drawings stay open, and no case before has left memory free.
        forgetPeak();
        Sitting sitting{kPlan.axisCount, easel::MirrorMode::Layer};
        easel::Document& live = sitting.open(makeDrawing(kPlan));
        static_cast<void>(sitting.apply(Take::TotalTime));
        for ([[maybe_unused]] const auto step : state) {
            sitting.activate(live);
            std::optional<Cost> last;
            const auto measure = [&](int paths, const Edit& edit, Take take) {
                last = editMirrored(sitting, live, paths, edit, take);
                return last.has_value();
            };
            const auto least = [](double& kept, double found) { kept = std::fmin(kept, found); };
            bool followed = measure(1, moveAnchors(1), Take::OwnTime);
            if (followed) {
                least(edit_.ownSeconds, last->ownSeconds);
                const auto calls = static_cast<double>(last->hostCalls);
                state.counters["calls"] = calls;
                callsBeyond_ = (calls - kCallsPerObject * kObjects) / alone;
            }
            for (std::size_t i = 0; i < kEdited.size(); ++i) {
                followed =
                    followed && measure(kEdited[i], moveAnchors(kEdited[i]), Take::TotalTime);
                if (followed) least(edited_[i], last->seconds);
            }
            followed = followed && measure(1, moveAnchorInDoubt, Take::OwnTime);
            if (followed) least(all_.ownSeconds, last->ownSeconds);
            followed = followed && measure(1, moveAnchorInDoubt, Take::TotalTime);
            if (followed) least(all_.seconds, last->seconds);
            if (!followed) {
                *this = {};
                return state.SkipWithError("the copies did not follow the edit");
            }
            state.SetIterationTime(edited_.front());
            least(floorSeconds_, floorSeconds(kCopiedSegments));
            sitting.openWithoutAxes(makeDrawing(kPlan));
            least(bareSeconds_, sitting.edit(makeCopiesBarely, Take::TotalTime).seconds);
        }
        state.counters["own_ms"] = 1e3 * edit_.ownSeconds;
        state.counters["all_ms"] = 1e3 * all_.seconds;
        state.counters["bare_ms"] = 1e3 * bareSeconds_;
    };
    benchmark::RegisterBenchmark("live_layer/axes:12/paths:1000/segments:10", run)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("live_layer/edits:1000",
                                 [this](benchmark::State& state) { editOnAndOn(state); })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

/// The point of one path is dragged, and the layer follows each of many small moves.
void LiveLayerCase::editOnAndOn(benchmark::State& state) {
    constexpr int kTold = 100; ///< Edits that are measured together.
    constexpr int kParts = 10;
    for ([[maybe_unused]] const auto step : state) {
        Sitting sitting{kPlan.axisCount, easel::MirrorMode::Layer};
        easel::Document& live = sitting.open(makeDrawing(kPlan));
        static_cast<void>(sitting.apply(Take::TotalTime));
        std::array<double, kParts> seconds{};
        std::array<double, kParts> heap{};
        const ai::int32 steps = live.undo().pastSteps();
        double stepsAnEdit = kNotMeasured;
        for (int part = 0; part < kParts; ++part) {
            for (int i = 0; i < kTold; ++i) {
                seconds.at(part) += sitting.edit(moveAnchors(1), Take::TotalTime).seconds;
            }
            heap.at(part) = heapBytes();
            if (part == 0)
                stepsAnEdit = static_cast<double>(live.undo().pastSteps() - steps) / kTold;
        }
        // The history is full after some hundred edits; from then on nothing may grow.
        evenness_ = std::fmin(evenness_, seconds.back() / seconds.front());
        heapGrowth_ = heap.back() / heap.at(kParts / 2);
        stepsAnEdit_ = stepsAnEdit;
    }
}

void LiveLayerCase::report(Findings& findings) const {
    findings.insert(
        findings.end(),
        {{"edit in a live layer of 1,000 paths, 12 axes: own time", 1e3 * edit_.ownSeconds},
         {"edit in a live layer: host calls beyond 3 an object, over those of its path alone",
          callsBeyond_},
         {"edit in a live layer: whole time over that of all copies anew",
          edited_[0] / all_.seconds},
         {"10 paths edited in a live layer: whole time over that of all copies anew",
          edited_[1] / all_.seconds},
         {"100 paths edited in a live layer: whole time over that of all copies anew",
          edited_[2] / all_.seconds},
         {"1,000 edits of a live layer: the last hundred over the first", evenness_},
         {"1,000 edits of a live layer: memory, over that after 600", heapGrowth_},
         {"1,000 edits of a live layer: undo steps an edit", stepsAnEdit_},
         {"all copies of a live layer anew: own time", 1e3 * all_.ownSeconds},
         {"all copies of a live layer anew: own time over floor", all_.ownSeconds / floorSeconds_},
         {"all copies of a live layer anew: whole time over that of a bare loop",
          all_.seconds / bareSeconds_}});
}

} // namespace facetta::bench
