#pragma once

#include "easel/document/Session.h"

namespace easel {

/// The session of this process with every suite that Easel has, ready for a host to offer. Tables
/// are made once and never move, because the functions in them exist once in a process.
[[nodiscard]] Session& sessionWithSuites();

} // namespace easel
