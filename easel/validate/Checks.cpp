#include "easel/validate/Checks.h"

namespace easel::validate {
namespace {

constexpr Check kChecks[] = {
    {"failing-host",
     "Whatever call of the host fails in whatever is done, the drawing is as it was, is done, or "
     "is one Undo away, nothing stays lent, and the next act works",
     checkFailingHost},
};

} // namespace

std::span<const Check> checks() { return kChecks; }

} // namespace easel::validate
