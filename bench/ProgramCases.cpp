#include "bench/ProgramCases.h"

#include "bench/Drawings.h"
#include "bench/Memory.h"
#include "bench/Sitting.h"
#include "easel/svg/SvgFile.h"

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cmath>
#include <fstream>

namespace facetta::bench {
namespace {

constexpr DrawingPlan kPlan{Placement::Clear, 12, 10'000, 10};
constexpr int kRuns = 1;
constexpr double kMebibyte = 1024.0 * 1024.0;

const std::filesystem::path kFolder = "build/bench";

struct ProgramRun {
    bool succeeded = false;
    double seconds = 0; ///< Of processor time, from start to exit.
    double peakBytes = 0;
};

double secondsOf(timeval time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

ProgramRun runProgram(std::vector<std::string> words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    if (posix_spawn(&process, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0)
        return {};
    int status = 0;
    struct rusage usage {};
    wait4(process, &status, 0, &usage);
    return {.succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0,
            .seconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime),
            .peakBytes = 1024.0 * static_cast<double>(usage.ru_maxrss)};
}

std::size_t segmentsIn(const std::filesystem::path& file) {
    return countPaths(*easel::svg::readSvg(easel::session(), file).document).segments;
}

} // namespace

void ProgramCases::registerAll() {
    // The first case of all: later, memory that others have freed hides some of the peak, so that
    // the most of all rounds counts.
    benchmark::RegisterBenchmark("memory/axes:12/paths:10000/segments:10", [this](benchmark::State&
                                                                                      state) {
        for ([[maybe_unused]] const auto step : state) {
            Sitting sitting{kPlan.axisCount, easel::MirrorMode::Selection};
            forgetPeak();
            const double heap = heapBytes();
            const double resident = residentBytes();
            easel::Document& document = sitting.open(makeDrawing(kPlan));
            static_cast<void>(sitting.apply(Take::TotalTime));
            mirroringPeak_ = std::fmax(mirroringPeak_, peakBytes() - resident);
            document.undo().clear();
            documentBytes_ = heapBytes() - heap;
        }
        state.counters["document_MiB"] = documentBytes_ / kMebibyte;
        state.counters["peak_MiB"] = mirroringPeak_ / kMebibyte;
    })->Iterations(1);

    benchmark::RegisterBenchmark(
        "program/axes:12/paths:10000/segments:10",
        [this](benchmark::State& state) {
            std::filesystem::create_directories(kFolder);
            const std::string drawing = kFolder / "drawing.svg";
            const std::string mirrored = kFolder / "mirrored.svg";
            const std::string plain = kFolder / "plain.svg";
            const std::string axes = std::to_string(kPlan.axisCount);
            std::ofstream(drawing) << svgOf(kPlan);
            for ([[maybe_unused]] const auto step : state) {
                std::filesystem::remove(mirrored);
                std::filesystem::remove(plain);
                const ProgramRun easel =
                    runProgram({EASEL_PROGRAM, "mirror", drawing, "-o", mirrored, "--axes", axes,
                                "--plugin", FACETTA_LIBRARY});
                const ProgramRun bare = runProgram({PLAIN_PROGRAM, drawing, plain, axes});
                if (!easel.succeeded || !bare.succeeded ||
                    segmentsIn(mirrored) != segmentsIn(plain)) {
                    programSeconds_ = plainSeconds_ = programPeak_ = kNotMeasured;
                    return state.SkipWithError("the programs did not make as many segments");
                }
                programSeconds_ = std::fmin(programSeconds_, easel.seconds);
                plainSeconds_ = std::fmin(plainSeconds_, bare.seconds);
                programPeak_ = easel.peakBytes;
                state.SetIterationTime(easel.seconds);
            }
            state.counters["easel_s"] = programSeconds_;
            state.counters["plain_s"] = plainSeconds_;
            state.counters["easel_peak_MiB"] = programPeak_ / kMebibyte;
        })
        ->UseManualTime()
        ->Iterations(kRuns);
}

void ProgramCases::report(Findings& findings) const {
    findings.push_back({"memory of mirroring 100,000 segments, 12 axes, over the document's",
                        mirroringPeak_ / documentBytes_});
    findings.push_back(
        {"memory of the whole program over the document's", programPeak_ / documentBytes_});
    findings.push_back(
        {"time of the whole program over a plain one's", programSeconds_ / plainSeconds_});
}

} // namespace facetta::bench
