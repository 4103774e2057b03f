#include "host/UserSuiteLayout.h"

#include "host/suites/AIUserSuite.h"

#include <algorithm>
#include <array>

namespace ai {

bool liesAsDeclared(const AIUserSuite& suite) {
    // Where this slot is not the clock, it is a function that does nothing.
    std::array<AIUserDateTime, 16> clock{}; // roomy: the record is opaque
    suite.GetDateAndTime(clock.data());
    return std::ranges::any_of(clock, [](AIUserDateTime part) { return part != 0; });
}

} // namespace ai
