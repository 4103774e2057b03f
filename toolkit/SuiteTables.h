#pragma once

#include "host/Types.h"
#include "host/suites/SPBasicSuite.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

#include <span>

namespace NRDM {

struct SuiteTable {
    const char* name;
    ai::int32 version;
    const void* functions;
    std::size_t slots;
};

[[nodiscard]] std::span<const SuiteTable> suiteTables();

/// The host's basic suite with the toolkit's suites among those that can be acquired: they are
/// looked up first, everything else goes to the host. Good until the next call; null for null.
[[nodiscard]] const SPBasicSuite* offeringSuites(const SPBasicSuite* host);

} // namespace NRDM
