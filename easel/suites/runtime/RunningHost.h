#pragma once

#include "easel/runtime/Host.h"

#include <cassert>

namespace easel {

/// The host that runs on the session of this process. Suites are called only while there is one.
[[nodiscard]] inline Host& host() noexcept {
    assert(session().host != nullptr);
    return *session().host;
}

} // namespace easel
