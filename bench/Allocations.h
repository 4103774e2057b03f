#pragma once

#include <cstdint>

namespace facetta::bench {

/// From now on counts the memory that is taken while `isOwn` says so; null: no more. The count
/// starts at 0.
void countAllocations(bool (*isOwn)());
[[nodiscard]] std::uint64_t allocationCount();

} // namespace facetta::bench
