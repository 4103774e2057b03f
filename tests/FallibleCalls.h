#pragma once

#include "easel/core/HostCalls.h"
#include "easel/document/Session.h"

#include <string>
#include <vector>

namespace facetta::tests {

/// The names of the host calls that `act` makes and that can fail, in order.
template <typename Act> std::vector<std::string> fallibleCalls(Act act) {
    easel::HostCalls& calls = easel::session().calls;
    calls.setRecording(true);
    act();
    calls.setRecording(false);
    std::vector<std::string> names;
    for (const easel::SlotRecord* slot : calls.recorded())
        if (slot->returnsError) names.push_back(slot->name);
    return names;
}

} // namespace facetta::tests
