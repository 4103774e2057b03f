#include "easel/script/System.h"
#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"

#include <ctime>

/// How long acts take in a drawing of many paths. The benchmarks have the figures; here nobody must
/// have to wait.

namespace easel::validate {
namespace {

/// Of processor time, so that what else the machine does is left out; Windows' clock() counts the
/// time that passes.
constexpr std::clock_t kLimitMilliseconds = 1000;

void time(Session& session, Trials& trials, const Act& act, const std::string& drawing) {
    Sitting sitting(session, trials.options().plugin);
    toTheEnd(trials, sitting, [&] {
        sitting.prepare(act, drawing);
        const std::clock_t began = std::clock();
        sitting.perform(act.lines);
        const std::clock_t took = (std::clock() - began) / (CLOCKS_PER_SEC / 1000);
        if (took > kLimitMilliseconds) trials.fail("it took " + std::to_string(took) + " ms");
        static_cast<void>(sitting.takeReactions());
    });
}

} // namespace

void checkTimeLimits(Session& session, Trials& trials) {
    // Acts between which strictness chooses, and leaves in the drawing.
    const auto every = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{20, 8, 4, 1, 1}
                    : std::array<std::uint64_t, 5>{8, 2, 1, 1, 1});
    const int leaves = trials.byStrictness<int>({100, 300, 1000, 1000, 2000});
    const std::string drawing = manyLeaves(leaves);
    std::uint64_t number = 0;
    for (const Act& act : acts()) {
        ++number;
        if (number % every == 0 && trials.begin(number, std::string(act.name) + " on " +
                                                            std::to_string(leaves) + " leaves"))
            time(session, trials, act, drawing);
    }
}

} // namespace easel::validate
