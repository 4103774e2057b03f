#include "bench/SnapCases.h"

#include "bench/Drawings.h"
#include "bench/Sitting.h"
#include "bench/Stopwatch.h"
#include "easel/document/ArtTree.h"
#include "host/SuiteTable.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/geometry/PerpendicularFeet.h"
#include "tool/snapping/PerpendicularSnap.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace facetta::bench {
namespace {

using std::numbers::pi;

constexpr int kPaths = 1'000;
constexpr int kColumns = 25;
constexpr double kCellWidth = 300;
constexpr double kCellHeight = 190;
constexpr double kReach = 12; ///< of a snap at a zoom of 1

constexpr int kRuns = 4;

/// Three waves across a cell of the page, whatever the number of its anchors.
easel::Segments waveIn(int cell, int anchors) {
    const int column = cell % kColumns;
    const int row = cell / kColumns;
    const double left = 200 + kCellWidth * column;
    const double middle = -150 - kCellHeight * row;
    const double width = 0.9 * kCellWidth;
    const double height = 0.4 * kCellHeight;
    const double third = 1.0 / (3.0 * (anchors - 1)); // a cubic's handle is a third of its speed
    easel::Segments segments;
    for (int i = 0; i < anchors; ++i) {
        const double t = static_cast<double>(i) / (anchors - 1);
        const double phase = 6 * pi * t;
        const double x = left + width * t;
        const double y = middle + height * std::sin(phase);
        const double rise = 6 * pi * height * std::cos(phase);
        segments.push_back({narrow(Point{x, y}), narrow(Point{x - third * width, y - third * rise}),
                            narrow(Point{x + third * width, y + third * rise}), 0});
    }
    return segments;
}

std::unique_ptr<easel::Document> makePage(int anchors) {
    auto page = std::make_unique<easel::Document>(easel::session(), kArtboard);
    easel::Art& layer = *page->root().firstChild();
    for (int cell = 0; cell < kPaths; ++cell) {
        easel::Art& path = easel::createArt(*page, kPathArt, easel::atBottomOf(layer));
        path.write().segments.write() = waveIn(cell, anchors);
    }
    return page;
}

std::vector<AIArtHandle> pathsOf(const easel::Document& page) {
    std::vector<AIArtHandle> paths;
    for (const easel::Art* art = page.root().firstChild()->firstChild(); art != nullptr;
         art = art->next())
        paths.push_back(art->handle());
    return paths;
}

double askForBounds(const std::vector<AIArtHandle>& paths) {
    const auto& arts = hostSuite<AIArtSuite>(kAIArtSuite, kAIArtSuiteVersion);
    const Stopwatch watch;
    for (const AIArtHandle path : paths) {
        AIRealRect bounds{};
        arts.GetArtTransformBounds(path, nullptr, kNoStrokeBounds, &bounds);
        benchmark::DoNotOptimize(bounds);
    }
    return watch.processorSeconds();
}

/// On the first axis of those through `kOrigin`.
constexpr AIRealPoint kGrab{kOrigin.h + 2000, kOrigin.v};
/// On a path, here and there in turn, so that each message moves the axis.
constexpr AIRealPoint kPlaces[] = {{4817, -3499}, {4819, -3498}};

/// Of a time not yet measured, the first.
void keepLeast(double& least, double seconds) { least = std::fmin(least, seconds); }

void run(benchmark::State& state, SnapCase& measured) {
    Sitting sitting{1, easel::MirrorMode::Layer};
    easel::Document& page = sitting.open(makePage(measured.segments));
    const std::vector<AIArtHandle> paths = pathsOf(page);
    sitting.press(kGrab);
    static_cast<void>(sitting.drag(kPlaces[0], Take::TotalTime));
    for ([[maybe_unused]] const auto step : state) {
        const Cost own = sitting.drag(kPlaces[0], Take::OwnTime);
        if (own.hostCalls < kPaths) {
            measured = {.segments = measured.segments};
            return state.SkipWithError("no art was looked at");
        }
        keepLeast(measured.ownSeconds, own.ownSeconds);
        const Cost total = sitting.drag(kPlaces[1], Take::TotalTime);
        keepLeast(measured.totalSeconds, total.seconds);
        keepLeast(measured.boundsSeconds, askForBounds(paths));
        state.SetIterationTime(total.seconds);
        state.counters["calls"] = static_cast<double>(own.hostCalls);
    }
    sitting.release(kPlaces[1]);

    // This program's own copy of the plug-in's search tells what it looked at.
    for (const ai::SuiteRow& row : ai::suiteTable())
        row.store(easel::sessionWithSuites().suites.functions(row.name, row.version));
    const PerpendicularSnap snap = findPerpendicular(widen(kOrigin), widen(kPlaces[1]), kReach);
    ai::suites = {};
    if (!snap.point) {
        measured = {.segments = measured.segments};
        return state.SkipWithError("nothing was snapped to");
    }
    measured.examinedShare =
        static_cast<double>(snap.examined) / (kPaths * (measured.segments - 1.0));
    state.counters["own_us"] = 1e6 * measured.ownSeconds;
    state.counters["bounds_us"] = 1e6 * measured.boundsSeconds;
    state.counters["examined"] = static_cast<double>(snap.examined);
}

struct Question {
    Cubic curve;
    Point from;
};

/// Half of them drawn curves, half of them control points thrown at random, which loop and turn.
std::vector<Question> questions() {
    constexpr int kQuestions = 20'000;
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> place(-100.0, 100.0);
    const auto any = [&] { return Point{place(random), place(random)}; };
    const auto bend = [&] { return 0.1 * (any() - Point{}); };
    std::vector<Question> all;
    for (int i = 0; i < kQuestions; ++i) {
        const Point a = any();
        const Point b = any();
        const Cubic drawn{a, lerp(a, b, 1.0 / 3) + bend(), lerp(a, b, 2.0 / 3) + bend(), b};
        all.push_back({i % 2 == 0 ? drawn : Cubic{a, any(), any(), b}, any()});
    }
    return all;
}

/// `answer` tells how many it found.
double timePerQuestion(const std::vector<Question>& all, int (*answer)(const Question&)) {
    int found = 0;
    const Stopwatch watch;
    for (const Question& question : all)
        found += answer(question);
    const double seconds = watch.processorSeconds() / static_cast<double>(all.size());
    return found > 0 ? seconds : kNotMeasured;
}

int findFeet(const Question& question) {
    const Feet feet = perpendicularFeet(question.curve, question.from);
    benchmark::DoNotOptimize(feet);
    return feet.count;
}

int sample(const Question& question) {
    constexpr int kSamples = 64;
    for (int i = 0; i < kSamples; ++i) {
        const Point point = evaluate(question.curve, static_cast<double>(i) / kSamples);
        benchmark::DoNotOptimize(point);
    }
    return kSamples;
}

} // namespace

void SnapCases::registerAll() {
    for (SnapCase* one : {&few_, &many_})
        benchmark::RegisterBenchmark(
            ("snap/paths:1000/segments:" + std::to_string(one->segments)).c_str(),
            [one](benchmark::State& state) { run(state, *one); })
            ->UseManualTime()
            ->Iterations(kRuns)
            ->Unit(benchmark::kMicrosecond);

    const auto measureFeet = [this](benchmark::State& state) {
        const std::vector<Question> all = questions();
        for ([[maybe_unused]] const auto step : state) {
            const double feet = timePerQuestion(all, findFeet);
            if (std::isnan(feet)) return state.SkipWithError("no feet were found");
            keepLeast(footSeconds_, feet);
            keepLeast(sampleSeconds_, timePerQuestion(all, sample));
            state.SetIterationTime(feet);
        }
        state.counters["over_64_samples"] = footSeconds_ / sampleSeconds_;
    };
    benchmark::RegisterBenchmark("snap/feet", measureFeet)
        ->UseManualTime()
        ->Iterations(kRuns)
        ->Unit(benchmark::kNanosecond);
}

void SnapCases::report(Findings& findings) const {
    findings.push_back({"drag over 1,000 paths of 100 segments: whole message over their bounds",
                        many_.totalSeconds / many_.boundsSeconds});
    findings.push_back(
        {"drag over them: share of curves whose feet are computed", many_.examinedShare});
    findings.push_back({"drag over them: own time over that with 10 segments each",
                        many_.ownSeconds / few_.ownSeconds});
    findings.push_back(
        {"drag over them: own time beyond that with 10 segments each, over their bounds",
         (many_.ownSeconds - few_.ownSeconds) / many_.boundsSeconds});
    findings.push_back({"feet of perpendiculars on one curve", 1e6 * footSeconds_});
    findings.push_back({"feet of perpendiculars on one curve, over 64 samples of it",
                        footSeconds_ / sampleSeconds_});
}

} // namespace facetta::bench
