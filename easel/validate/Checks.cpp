#include "easel/validate/Checks.h"

namespace easel::validate {
namespace {

constexpr Check kChecks[] = {
    {"library",
     "The file exports its entry alone, imports what every supported Windows has, cannot write its "
     "own code, has every picture in all its variants, and runs at any address",
     checkLibrary},
    {"life",
     "It starts and quits any number of times, wherever its library is loaded; refused suites and "
     "failures while it starts end tidily; messages that nobody expects do no harm",
     checkLife},
    {"failing-host",
     "Whatever call of the host fails in whatever is done, the drawing is as it was, is done, or "
     "is one Undo away, nothing stays lent, and the next act works",
     checkFailingHost},
    {"hostile-entries",
     "Whatever a drawing holds under the plug-in's keys, it is opened as it is, and each edit can "
     "be undone",
     checkHostileEntries},
    {"hostile-settings",
     "Whatever the store of settings holds, the plug-in starts, works and leaves values in their "
     "range",
     checkHostileSettings},
    {"hostile-resources",
     "Whatever resource of the library is damaged, a dialog that cannot be made stays away with a "
     "message, and all else works",
     checkHostileResources},
    {"monkey",
     "After any sequence of acts all can be undone and done again, copies lie only on layers with "
     "axes, and the saved drawing is opened as it was",
     checkMonkey},
    {"steadiness",
     "What is done thousands of times takes less than a megabyte, and no objects of the system's",
     checkSteadiness},
    {"time-limits", "No act in a large drawing takes longer than a second", checkTimeLimits},
};

} // namespace

std::span<const Check> checks() { return kChecks; }

} // namespace easel::validate
