/// Runs the benchmarks, then says what they show beside what is wanted. Takes the options of Google
/// Benchmark: --benchmark_filter=REGEX runs some of them.

#include "bench/LiveLayerCase.h"
#include "bench/MirrorCases.h"
#include "bench/OverlayCases.h"
#include "bench/ProgramCases.h"
#include "bench/SnapCases.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <limits>

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
    benchmark::RunSpecifiedBenchmarks();

    Findings findings;
    mirroring.judge(findings);
    liveLayer.judge(findings);
    program.judge(findings);
    snapping.judge(findings);
    overlay.judge(findings);
    print(findings);
    write(findings, "build/bench/findings.json");
}
