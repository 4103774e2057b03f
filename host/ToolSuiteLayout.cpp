#include "host/ToolSuiteLayout.h"

#include "host/Suites.h"
#include "host/suites/AIToolSuite.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace ai {
namespace {

/// Stands in for a shorter table of the host's; unused otherwise.
AIToolSuite aligned{}; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

constexpr std::size_t kSlots = sizeof(AIToolSuite) / sizeof(void*);
constexpr std::size_t kMissing = offsetof(AIToolSuite, AddToolPrivate) / sizeof(void*);

} // namespace

void alignToolSuite(AIToolHandle tool, ai::int32 options) {
    // Both functions take the tool and where to put the answer: a pointer, or 32 bits of options,
    // which are no address.
    char* name = nullptr;
    suites.tool->GetToolName(tool, &name);
    if (reinterpret_cast<std::uintptr_t>(name) != static_cast<std::uintptr_t>(options)) return;
    std::array<void*, kSlots> slots{};
    std::memcpy(slots.data(), suites.tool, sizeof(AIToolSuite) - sizeof(void*));
    std::shift_right(slots.begin() + kMissing, slots.end(), 1);
    slots.at(kMissing) = nullptr;
    std::memcpy(&aligned, slots.data(), sizeof aligned);
    suites.tool = &aligned;
}

} // namespace ai
