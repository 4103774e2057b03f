#pragma once

#include "easel/document/Session.h"
#include "easel/validate/Trials.h"

#include <span>

namespace easel::validate {

/// One way of trying a plug-in, which runs in a process of its own.
struct Check {
    const char* name;
    const char* promise; ///< What holds when it finds nothing; a sentence without its full stop.
    void (*run)(Session&, Trials&);
};

/// In the order in which they run.
[[nodiscard]] std::span<const Check> checks();

void checkLibrary(Session& session, Trials& trials);
void checkLife(Session& session, Trials& trials);
void checkFailingHost(Session& session, Trials& trials);
void checkHostileEntries(Session& session, Trials& trials);
void checkHostileResources(Session& session, Trials& trials);
void checkHostileSettings(Session& session, Trials& trials);
void checkMonkey(Session& session, Trials& trials);
void checkSteadiness(Session& session, Trials& trials);
void checkTimeLimits(Session& session, Trials& trials);

} // namespace easel::validate
