#pragma once

#include "host/Handles.h"
#include "host/Types.h"

namespace ai {

/// Some builds of the host may lack the second function of the tool suite, and then have all later
/// ones a slot earlier. Asks for the name of `tool`, our own, which was added with `options`: where
/// the slot holds the query for the options instead, `suites.tool` becomes a table that is laid out
/// as declared. To be called whenever the suites have been acquired and there is a tool, before any
/// other function of the suite.
void alignToolSuite(AIToolHandle tool, ai::int32 options);

} // namespace ai
