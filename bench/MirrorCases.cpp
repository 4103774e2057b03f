#include "bench/MirrorCases.h"

#include "bench/Floor.h"
#include "bench/Sitting.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace facetta::bench {
namespace {

struct PlacementRecord {
    Placement placement;
    const char* name;
    double wantedOverFloor; ///< The plug-in's own time over that of the plain loop.
};

constexpr PlacementRecord kPlacements[] = {
    {Placement::Clear, "clear", 4},
    {Placement::Crossing, "crossing", 12},
    {Placement::Spanning, "spanning", 12},
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
constexpr double kFlatWithin = 1.25;
constexpr double kLinearWithin = 1.05;
constexpr double kSameCount = 1e-6; ///< Counts, divided.

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

void takeLeast(double& least, double seconds) { least = std::min(least, seconds); }

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
        takeLeast(mirrored.ownSeconds, own.ownSeconds);
        takeLeast(mirrored.totalSeconds, applyTo(sitting, mirrored, Take::TotalTime).seconds);
        takeLeast(mirrored.floorSeconds, floorSeconds(mirrored.made));
        state.SetIterationTime(own.ownSeconds);
    }
    mirrored.measured = true;
    setCounters(state, mirrored);
}

double ownOverFloor(const MirrorCase& c) { return c.ownSeconds / c.floorSeconds; }

struct Range {
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();

    void include(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
};

template <typename Cases, typename Measure> Range rangeOf(const Cases& cases, Measure measure) {
    Range range;
    for (const MirrorCase* each : cases)
        range.include(measure(*each));
    return range;
}

using Seconds = double MirrorCase::*;

/// The most that a segment of a later case costs over one of an earlier, smaller case.
template <typename Cases> double riseOf(const Cases& cases, Seconds seconds) {
    double least = kEver;
    double rise = 0;
    for (const MirrorCase* each : cases) {
        // What takes less than the plain loop lies near what the host's clock can tell.
        const double cost =
            std::max(each->*seconds, each->floorSeconds) / static_cast<double>(each->made);
        least = std::min(least, cost);
        rise = std::max(rise, cost / least);
    }
    return rise;
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
        if (each.measured && belongs(each.plan)) found.push_back(&each);
    return found;
}

void MirrorCases::judge(Findings& findings) const {
    for (const PlacementRecord& record : kPlacements) {
        if (group([&](const DrawingPlan& p) { return p.placement == record.placement; }).empty())
            continue;
        judgeOwnTime(findings, record.placement);
        judgeHostCalls(findings, record.placement);
        judgeFlatness(findings, record.placement);
        judgeGrowth(findings, record.placement);
    }
}

void MirrorCases::judgeOwnTime(Findings& findings, Placement placement) const {
    const PlacementRecord& record = recordOf(placement);
    for (const int segments : kSegmentCounts)
        for (const int axes : kAxisCounts) {
            const Group cases = group([&](const DrawingPlan& p) {
                return p.placement == placement && p.axisCount == axes && p.segments == segments &&
                       sizeOf(p) >= kFewSegments;
            });
            if (cases.empty()) continue; // the user asked for others
            findings.push_back({std::string(record.name) + ", paths of " +
                                    std::to_string(segments) + ", axes " + std::to_string(axes) +
                                    ": own time over floor, worst case",
                                record.wantedOverFloor, rangeOf(cases, ownOverFloor).most, "x"});
        }
}

/// The calls that one more copy costs (one more path, where nothing is copied) must be the same
/// whatever the size. They are found from four neighbouring cases, fewer and more paths with fewer
/// and more axes, so that what each run, path and axis costs falls out.
void MirrorCases::judgeHostCalls(Findings& findings, Placement placement) const {
    const auto at = [&](int axes, int paths) -> const MirrorCase* {
        const Group found = group([&](const DrawingPlan& p) {
            return p.placement == placement && p.axisCount == axes && p.paths == paths &&
                   p.segments == kSegmentsPerPath;
        });
        return found.empty() ? nullptr : found.front();
    };
    Range perCopy;
    Range perPath;
    for (std::size_t p = 1; p < std::size(kPathCounts); ++p) {
        Step former{};
        for (const int axes : kAxisCounts) {
            const MirrorCase* fewer = at(axes, kPathCounts[p - 1]);
            const MirrorCase* more = at(axes, kPathCounts[p]);
            if (fewer == nullptr || more == nullptr) continue;
            const Step step = stepBetween(*fewer, *more);
            perPath.include(step.calls / step.paths);
            if (former.paths > 0 && step.copies > former.copies)
                perCopy.include((step.calls - former.calls) / (step.copies - former.copies));
            former = step;
        }
    }
    const bool copied = placement != Placement::Spanning;
    const Range& range = copied ? perCopy : perPath;
    findings.push_back({std::string(recordOf(placement).name) + ", host calls per " +
                            (copied ? "copy: " : "path: ") + std::to_string(range.most) +
                            ", less the least",
                        kSameCount, range.most - range.least, ""});
}

/// A segment must not cost more in a larger drawing than in a smaller one. That it may cost less is
/// no fault: reading a source is paid once for all its copies.
void MirrorCases::judgeFlatness(Findings& findings, Placement placement) const {
    for (const auto& [time, seconds] : kTimes) {
        const auto riseWhere = [&, &seconds = seconds](int segments, auto belongs) {
            const Group cases = group([&](const DrawingPlan& p) {
                return p.placement == placement && p.segments == segments &&
                       sizeOf(p) >= kFewSegments && belongs(p);
            });
            return riseOf(cases, seconds);
        };
        double withSize = 0;
        double withAxes = 0;
        for (const int segments : kSegmentCounts) {
            for (const int axes : kAxisCounts)
                withSize = std::max(withSize, riseWhere(segments, [axes](const DrawingPlan& p) {
                                        return p.axisCount == axes;
                                    }));
            for (const int paths : kPathCounts)
                withAxes = std::max(withAxes, riseWhere(segments, [paths](const DrawingPlan& p) {
                                        return p.paths == paths;
                                    }));
        }
        const std::string name =
            std::string(recordOf(placement).name) + ", " + time + " time per segment, rise from ";
        findings.push_back({name + "1,000 to 100,000", kFlatWithin, withSize, "x"});
        findings.push_back({name + "1 to 72 axes", kFlatWithin, withAxes, "x"});
    }
}

void MirrorCases::judgeGrowth(Findings& findings, Placement placement) const {
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
            findings.push_back({name + ", " + time + " time", kLinearWithin,
                                exponentOf(cases, size, seconds), ""});
    }
}

} // namespace facetta::bench
