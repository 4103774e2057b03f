#pragma once

#include "host/Types.h"

#include <span>

namespace ai {

enum class Need { Required, Optional };

/// One suite that the plug-in acquires: name and exact version, and where its table is kept.
struct SuiteRow {
    const char* name;
    ai::int32 version;
    Need need;
    void (*store)(const void* table); ///< Into `ai::suites`; null forgets it.
};

/// The plug-in's contract with the host, in the order in which the suites are acquired.
[[nodiscard]] std::span<const SuiteRow> suiteTable() noexcept;

} // namespace ai
