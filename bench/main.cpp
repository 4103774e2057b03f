/// Runs the benchmarks, then says what they show beside what it may be at most. Takes the options
/// of Google Benchmark: --benchmark_filter=REGEX runs some of them. With --check, a miss ends it
/// with status 1. Run in the root of the repository.

#include "bench/LiveLayerCase.h"
#include "bench/MirrorCases.h"
#include "bench/OverlayCases.h"
#include "bench/PanelCases.h"
#include "bench/ProgramCases.h"
#include "bench/SnapCases.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <exception>
#include <limits>
#include <vector>

namespace {

/// A machine that does other work as well has slow seconds. Runs of one case lie minutes apart, so
/// that the least of them is from a quick one.
constexpr int kRounds = 8;

/// For rounds that are not the last: the cases keep what they measured. A case that fails does so
/// in the last round, too.
class NoReport : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>&) override {}
};

void runInRounds() {
    NoReport none;
    for (int round = 1; round < kRounds; ++round) {
        std::fprintf(stderr, "round %d of %d\n", round, kRounds);
        benchmark::RunSpecifiedBenchmarks(&none);
    }
    benchmark::RunSpecifiedBenchmarks();
}

/// Takes `option` out of the arguments, and tells whether it was there.
bool takeOption(int& argumentCount, char** arguments, const char* option) {
    char** const end = arguments + argumentCount;
    char** const kept = std::remove_if(
        arguments, end, [&](const char* each) { return std::strcmp(each, option) == 0; });
    argumentCount = static_cast<int>(kept - arguments);
    return kept != end;
}

} // namespace

int main(int argumentCount, char** arguments) try {
    using namespace facetta::bench;
    const std::vector<Limit> limits = readLimits("bench/limits.tsv");
    const bool check = takeOption(argumentCount, arguments, "--check");
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) return 2;

    // What one run frees the next one finds warm. Otherwise the largest drawings, and they alone,
    // would be charged with the system's work of handing out fresh memory.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);

    ProgramCases program;
    LiveLayerCase liveLayer;
    MirrorCases mirroring;
    SnapCases snapping;
    OverlayCases overlay;
    PanelCases panel;
    program.registerAll();
    liveLayer.registerAll();
    mirroring.registerAll();
    snapping.registerAll();
    overlay.registerAll();
    panel.registerAll();
    runInRounds();

    Findings findings;
    mirroring.report(findings);
    liveLayer.report(findings);
    program.report(findings);
    snapping.report(findings);
    overlay.report(findings);
    panel.report(findings);
    Verdicts verdicts = judge(findings, limits);
    const bool some = !benchmark::GetBenchmarkFilter().empty();
    if (some && !check) // a check is of everything
        std::erase_if(verdicts, [](const Verdict& v) { return std::isnan(v.measured); });
    print(verdicts);
    write(verdicts, "build/bench/findings.json");
    return check && countMisses(verdicts) > 0 ? 1 : 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "bench: %s\n", error.what());
    return 1;
}
