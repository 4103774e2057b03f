/// Runs the benchmarks, then says what they show beside what is wanted. Takes the options of Google
/// Benchmark: --benchmark_filter=REGEX runs some of them.

#include "bench/LiveLayerCase.h"
#include "bench/MirrorCases.h"
#include "bench/OverlayCases.h"
#include "bench/ProgramCases.h"
#include "bench/SnapCases.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
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

} // namespace

int main(int argumentCount, char** arguments) {
    using namespace facetta::bench;
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
    program.registerAll();
    liveLayer.registerAll();
    mirroring.registerAll();
    snapping.registerAll();
    overlay.registerAll();
    runInRounds();

    Findings findings;
    mirroring.judge(findings);
    liveLayer.judge(findings);
    program.judge(findings);
    snapping.judge(findings);
    overlay.judge(findings);
    print(findings);
    write(findings, "build/bench/findings.json");
}
