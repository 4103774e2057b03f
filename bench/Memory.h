#pragma once

namespace facetta::bench {

/// Bytes that this process holds on its heap.
[[nodiscard]] double heapBytes();
/// Bytes of memory that this process has in use.
[[nodiscard]] double residentBytes();
/// The most that was in use since `forgetPeak`.
[[nodiscard]] double peakBytes();
/// Gives free memory back to the system and begins a new peak.
void forgetPeak();

} // namespace facetta::bench
