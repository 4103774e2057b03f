#include "host/UserSuiteLayout.h"

#include "host/Codes.h"
#include "host/suites/AIUserSuite.h"

#include <algorithm>
#include <array>

namespace ai {

bool liesAsDeclared(const AIUserSuite& suite) {
    // Where this slot is not the clock, it is a function that does nothing.
    std::array<AIUserDateTime, 16> clock{}; // roomy: the record is opaque
    // A call that fails promises nothing of what it was to fill.
    return suite.GetDateAndTime(clock.data()) == kNoErr &&
           std::ranges::any_of(clock, [](AIUserDateTime part) { return part != 0; });
}

} // namespace ai
