#include "bench/MirrorCases.h"

#include "bench/Floor.h"
#include "bench/Sitting.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace facetta::bench {
namespace {

/// What mirroring makes of one path of `segments` segments across `axes` axes.
struct Outcome {
    int copies;   ///< Paths beyond the source.
    int segments; ///< In all, without those of a source that stays as it is.
    int fewestSegments;
};

struct PlacementRecord {
    Placement placement;
    const char* name;
    Outcome (*outcome)(int axes, int segments);
};

Outcome copied(int axes, int segments) {
    const int copies = 2 * axes - 1;
    return {copies, copies * segments, copies * segments};
}

/// Half of the segments, the crossing, and their images. Anchors that all but lie on the axis, as
/// those of long paths may, are the crossing themselves.
Outcome cutAndJoined(int axes, int segments) {
    return {axes - 1, axes * (segments + 1), axes * (segments - 1)};
}

/// Neighbours share the anchors on the axes.
Outcome joinedAllRound(int axes, int segments) {
    return {0, 2 * axes * (segments - 1), 2 * axes * (segments - 1)};
}

constexpr PlacementRecord kPlacements[] = {
    {Placement::Clear, "clear", copied},
    {Placement::Crossing, "crossing", cutAndJoined},
    {Placement::Spanning, "spanning", joinedAllRound},
};

constexpr int kAxisCounts[] = {1, 6, 72};
constexpr int kPathCounts[] = {10, 100, 1'000, 10'000};
constexpr int kSegmentsPerPath = 10;
/// The cost of a path falls on few segments or on many.
constexpr int kSegmentCounts[] = {kSegmentsPerPath, 100};
constexpr int kMostSegments = 100'000;
/// Few long paths. A joined one has 12 times as many segments, and the host allows 32,000.
constexpr int kLongPaths = 10;
constexpr int kLongPathSegments[] = {1'000, 2'500};
constexpr int kLongPathAxes = 6;

constexpr int kFewSegments = 1'000; ///< Below, fixed costs show.

const PlacementRecord& recordOf(Placement placement) {
    return kPlacements[static_cast<std::size_t>(placement)];
}

int sizeOf(const DrawingPlan& plan) { return plan.paths * plan.segments; }

std::string nameOf(const DrawingPlan& plan) {
    return std::string("mirror/") + recordOf(plan.placement).name +
           "/axes:" + std::to_string(plan.axisCount) + "/paths:" + std::to_string(plan.paths) +
           "/segments:" + std::to_string(plan.segments);
}

/// In each round. Small cases need more runs to find a quiet moment, large ones take their time.
int runsOf(const DrawingPlan& plan) {
    const int made = sizeOf(plan) * 2 * plan.axisCount;
    return made <= 50'000 ? 5 : made <= 2'000'000 ? 2 : 1;
}

/// Of a time not yet measured, the first.
void takeLeast(double& least, double seconds) { least = std::fmin(least, seconds); }

bool isMeasured(const MirrorCase& mirrored) { return !std::isnan(mirrored.totalSeconds); }

/// Times of a drawing that came out otherwise would tell nothing.
bool isAsPlanned(const MirrorCase& mirrored) {
    const DrawingPlan& plan = mirrored.plan;
    const Outcome each = recordOf(plan.placement).outcome(plan.axisCount, plan.segments);
    const auto inAll = [&](int count) { return static_cast<std::size_t>(plan.paths * count); };
    return mirrored.copies == inAll(each.copies) && mirrored.made <= inAll(each.segments) &&
           mirrored.made >= inAll(each.fewestSegments);
}

Cost applyTo(Sitting& sitting, MirrorCase& mirrored, Take take) {
    easel::Document& document = sitting.open(makeDrawing(mirrored.plan));
    const PathCount before = countPaths(document);
    const Cost cost = sitting.apply(take);
    const PathCount after = countPaths(document);
    const bool sourcesStay = mirrored.plan.placement == Placement::Clear;
    mirrored.made = after.segments - (sourcesStay ? before.segments : 0);
    mirrored.copies = after.paths - before.paths;
    mirrored.hostCalls = cost.hostCalls;
    sitting.close(document);
    return cost;
}

void setCounters(benchmark::State& state, const MirrorCase& mirrored) {
    const auto made = static_cast<double>(mirrored.made);
    state.counters["own_ns"] = 1e9 * mirrored.ownSeconds / made;
    state.counters["total_ns"] = 1e9 * mirrored.totalSeconds / made;
    state.counters["floor_ns"] = 1e9 * mirrored.floorSeconds / made;
    state.counters["made"] = made;
    state.counters["copies"] = static_cast<double>(mirrored.copies);
    state.counters["calls"] = static_cast<double>(mirrored.hostCalls);
    if (mirrored.copies > 0)
        state.counters["calls_per_copy"] =
            static_cast<double>(mirrored.hostCalls) / static_cast<double>(mirrored.copies);
}

void run(benchmark::State& state, MirrorCase& mirrored) {
    Sitting sitting{mirrored.plan.axisCount, easel::MirrorMode::Selection};
    for ([[maybe_unused]] const auto step : state) {
        const Cost own = applyTo(sitting, mirrored, Take::OwnTime);
        if (!isAsPlanned(mirrored)) {
            mirrored = {.plan = mirrored.plan};
            return state.SkipWithError("not the copies and segments that were to be made");
        }
        takeLeast(mirrored.ownSeconds, own.ownSeconds);
        takeLeast(mirrored.totalSeconds, applyTo(sitting, mirrored, Take::TotalTime).seconds);
        takeLeast(mirrored.floorSeconds, floorSeconds(mirrored.made));
        state.SetIterationTime(own.ownSeconds);
    }
    setCounters(state, mirrored);
}

/// Of nothing, or with one that was not measured, none.
double mostOf(const std::vector<double>& values) {
    const bool known = !values.empty() &&
                       std::ranges::none_of(values, [](double value) { return std::isnan(value); });
    return known ? std::ranges::max(values) : kNotMeasured;
}

double spreadOf(const std::vector<double>& values) {
    const double most = mostOf(values);
    return std::isnan(most) ? kNotMeasured : most - std::ranges::min(values);
}

template <typename Cases> double worstOverFloor(const Cases& cases) {
    std::vector<double> ratios;
    for (const MirrorCase* each : cases)
        ratios.push_back(each->ownSeconds / each->floorSeconds);
    return mostOf(ratios);
}

using Seconds = double MirrorCase::*;

/// The most that a segment of a later case costs over one of an earlier, smaller case.
template <typename Cases> double riseOf(const Cases& cases, Seconds seconds) {
    double least = kNotMeasured;
    std::vector<double> rises;
    for (const MirrorCase* each : cases) {
        // What takes less than the plain loop lies near what the host's clock can tell; how much
        // less it takes has limits of its own.
        const double cost =
            std::max(each->*seconds, each->floorSeconds) / static_cast<double>(each->made);
        least = std::fmin(least, cost);
        rises.push_back(cost / least);
    }
    return rises.size() < 2 ? kNotMeasured : mostOf(rises); // one case cannot rise
}

struct TimeRecord {
    const char* name;
    Seconds seconds;
};

constexpr TimeRecord kTimes[] = {{"own", &MirrorCase::ownSeconds},
                                 {"whole", &MirrorCase::totalSeconds}};

/// How two cases differ that differ in paths alone.
struct Step {
    double paths;
    double copies;
    double calls;
};

Step stepBetween(const MirrorCase& fewer, const MirrorCase& more) {
    if (!isMeasured(fewer) || !isMeasured(more)) return {kNotMeasured, kNotMeasured, kNotMeasured};
    return {.paths = static_cast<double>(more.plan.paths - fewer.plan.paths),
            .copies = static_cast<double>(more.copies - fewer.copies),
            .calls = static_cast<double>(more.hostCalls - fewer.hostCalls)};
}

/// The slope of a straight line through (log size, log seconds): 1 when time grows in proportion.
template <typename Cases, typename Size>
double exponentOf(const Cases& cases, Size size, Seconds seconds) {
    double x = 0;
    double y = 0;
    double xx = 0;
    double xy = 0;
    for (const MirrorCase* each : cases) {
        const double u = std::log(static_cast<double>(size(each->plan)));
        const double v = std::log(each->*seconds);
        x += u;
        y += v;
        xx += u * u;
        xy += u * v;
    }
    const auto n = static_cast<double>(cases.size());
    return (n * xy - x * y) / (n * xx - x * x);
}

} // namespace

void MirrorCases::add(const DrawingPlan& plan) {
    MirrorCase& mirrored = cases_.emplace_back(MirrorCase{.plan = plan});
    benchmark::RegisterBenchmark(nameOf(plan).c_str(),
                                 [&mirrored](benchmark::State& state) { run(state, mirrored); })
        ->UseManualTime()
        ->Iterations(runsOf(plan))
        ->Unit(benchmark::kMillisecond);
}

void MirrorCases::registerAll() {
    for (const PlacementRecord& record : kPlacements) {
        for (const int segments : kSegmentCounts)
            for (const int axes : kAxisCounts)
                for (const int paths : kPathCounts)
                    if (paths * segments <= kMostSegments)
                        add({record.placement, axes, paths, segments});
        for (const int segments : kLongPathSegments)
            add({record.placement, kLongPathAxes, kLongPaths, segments});
    }
}

MirrorCases::Group
MirrorCases::group(const std::function<bool(const DrawingPlan&)>& belongs) const {
    Group found;
    for (const MirrorCase& each : cases_)
        if (belongs(each.plan)) found.push_back(&each);
    return found;
}

void MirrorCases::report(Findings& findings) const {
    for (const PlacementRecord& record : kPlacements) {
        reportOwnTime(findings, record.placement);
        reportHostCalls(findings, record.placement);
        reportFlatness(findings, record.placement);
        reportGrowth(findings, record.placement);
    }
}

void MirrorCases::reportOwnTime(Findings& findings, Placement placement) const {
    for (const int segments : kSegmentCounts)
        for (const int axes : kAxisCounts) {
            const Group cases = group([&](const DrawingPlan& p) {
                return p.placement == placement && p.axisCount == axes && p.segments == segments &&
                       sizeOf(p) >= kFewSegments;
            });
            findings.push_back({std::string(recordOf(placement).name) + ", paths of " +
                                    std::to_string(segments) + ", axes " + std::to_string(axes) +
                                    ": own time over floor, worst case",
                                worstOverFloor(cases)});
        }
}

/// The calls that one more copy costs (one more path, where nothing is copied) must be the same
/// whatever the size. They are found from four neighbouring cases, fewer and more paths with fewer
/// and more axes, so that what each run, path and axis costs falls out.
void MirrorCases::reportHostCalls(Findings& findings, Placement placement) const {
    const auto at = [&](int axes, int paths) -> const MirrorCase& {
        return *group([&](const DrawingPlan& p) {
                    return p.placement == placement && p.axisCount == axes && p.paths == paths &&
                           p.segments == kSegmentsPerPath;
                }).front();
    };
    const bool copied = placement != Placement::Spanning;
    std::vector<double> calls;
    for (std::size_t p = 1; p < std::size(kPathCounts); ++p) {
        std::vector<Step> steps;
        for (const int axes : kAxisCounts)
            steps.push_back(stepBetween(at(axes, kPathCounts[p - 1]), at(axes, kPathCounts[p])));
        for (std::size_t i = 0; i < steps.size(); ++i)
            if (!copied)
                calls.push_back(steps[i].calls / steps[i].paths);
            else if (i > 0)
                calls.push_back((steps[i].calls - steps[i - 1].calls) /
                                (steps[i].copies - steps[i - 1].copies));
    }
    const std::string name =
        std::string(recordOf(placement).name) + ", host calls per " + (copied ? "copy" : "path");
    findings.push_back({name, mostOf(calls)});
    findings.push_back({name + ", less the least", spreadOf(calls)});
}

/// A segment must not cost more in a larger drawing than in a smaller one. That it may cost less is
/// no fault: reading a source is paid once for all its copies.
void MirrorCases::reportFlatness(Findings& findings, Placement placement) const {
    for (const auto& [time, seconds] : kTimes) {
        std::vector<double> withSize;
        std::vector<double> withAxes;
        const auto addRise = [&, &seconds = seconds](std::vector<double>& rises, int segments,
                                                     auto belongs) {
            const Group cases = group([&](const DrawingPlan& p) {
                return p.placement == placement && p.segments == segments &&
                       sizeOf(p) >= kFewSegments && belongs(p);
            });
            if (!cases.empty()) rises.push_back(riseOf(cases, seconds)); // some sizes have none
        };
        for (const int segments : kSegmentCounts) {
            for (const int axes : kAxisCounts)
                addRise(withSize, segments,
                        [axes](const DrawingPlan& p) { return p.axisCount == axes; });
            for (const int paths : kPathCounts)
                addRise(withAxes, segments,
                        [paths](const DrawingPlan& p) { return p.paths == paths; });
        }
        const std::string name =
            std::string(recordOf(placement).name) + ", " + time + " time per segment, rise from ";
        findings.push_back({name + "1,000 to 100,000", mostOf(withSize)});
        findings.push_back({name + "1 to 72 axes", mostOf(withAxes)});
    }
}

void MirrorCases::reportGrowth(Findings& findings, Placement placement) const {
    struct Growth {
        const char* with;
        std::function<bool(const DrawingPlan&)> belongs;
        int (*size)(const DrawingPlan&);
    };
    const Growth growths[] = {
        {"paths",
         [](const DrawingPlan& p) {
             return p.axisCount == 6 && p.segments == kSegmentsPerPath && sizeOf(p) >= kFewSegments;
         },
         [](const DrawingPlan& p) { return p.paths; }},
        {"segments",
         [](const DrawingPlan& p) {
             return p.axisCount == kLongPathAxes && p.paths == kLongPaths &&
                    p.segments > kSegmentsPerPath;
         },
         [](const DrawingPlan& p) { return p.segments; }},
        {"axes",
         [](const DrawingPlan& p) { return p.paths == 1'000 && p.segments == kSegmentsPerPath; },
         [](const DrawingPlan& p) { return p.axisCount; }},
    };
    for (const auto& [with, belongs, size] : growths) {
        const Group cases = group([&, &within = belongs](const DrawingPlan& p) {
            return p.placement == placement && within(p);
        });
        const std::string name = std::string(recordOf(placement).name) + ", exponent in " + with;
        for (const auto& [time, seconds] : kTimes)
            findings.push_back({name + ", " + time + " time", exponentOf(cases, size, seconds)});
    }
}

} // namespace facetta::bench
