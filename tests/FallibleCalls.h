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

/// Is this a call that gives something back, or an entry by reading or storing it? When the host
/// fails these, it is left with what it lent.
inline bool givesBack(const std::string& function) {
    if (function.starts_with("AI Entry Suite.To") || function == "AI Dictionary Suite.Set")
        return true;
    for (const char* const end :
         {"Destroy", "Release", "DisposeArtSet", "PopAppContext", "DeleteFilePath"})
        if (function.ends_with(end)) return true;
    return false;
}

} // namespace facetta::tests
