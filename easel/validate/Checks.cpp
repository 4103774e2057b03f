#include "easel/validate/Checks.h"

namespace easel::validate {
namespace {

constexpr Check kChecks[] = {
    {"life",
     "It starts and quits any number of times, wherever its library is loaded; refused suites and "
     "failures while it starts end tidily; messages that nobody expects do no harm",
     checkLife},
    {"failing-host",
     "Whatever call of the host fails in whatever is done, the drawing is as it was, is done, or "
     "is one Undo away, nothing stays lent, and the next act works",
     checkFailingHost},
};

} // namespace

std::span<const Check> checks() { return kChecks; }

} // namespace easel::validate
