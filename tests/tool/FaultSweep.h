#pragma once

#include "tests/FallibleCalls.h"
#include "tests/tool/Drawing.h"

#include <span>
#include <string>

namespace facetta::tests {

/// Is this a call that gives something back, or an entry by reading or storing it? When the host
/// fails these, it is left with what it lent.
[[nodiscard]] bool givesBack(const std::string& function);

/// Something the user does, as one undo step at most, and what comes before it.
struct FaultAction {
    const char* name;
    void (*prepare)(Drawing&);
    void (*perform)(Drawing&);
};

/// Performs each action again and again, failing another host call each time, now and then with all
/// that follow, with the next, or with a code that means something else. Nothing may be lent
/// for good, the document must be what it was or one undo away from it, and the tool must go on.
void sweepFaults(std::span<const FaultAction> actions);

} // namespace facetta::tests
