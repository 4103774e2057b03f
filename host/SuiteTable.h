#pragma once

#include "host/Types.h"

#include <span>

namespace ai {

enum class Need { Required, Optional };

/// One suite that the plug-in acquires: name and version, and where its table is kept.
struct SuiteRow {
    const char* name;
    ai::int32 version;
    Need need;
    void (*store)(const void* table); ///< Into `ai::suites`; null forgets it.
    /// Versions that do as well, because the slots in use are the same; tried in this order.
    std::span<const ai::int32> fallbacks;
};

/// The plug-in's contract with the host, in the order in which the suites are acquired.
[[nodiscard]] std::span<const SuiteRow> suiteTable() noexcept;

} // namespace ai
