/// The seed of every random test.
#pragma once

#include <cstdint>
#include <cstdlib>

namespace facetta::tests {

/// The number FACETTA_SEED holds; unset, the same number in every run, so that a run can be
/// repeated. Each test program prints it when it starts.
[[nodiscard]] inline std::uint64_t seed() {
    constexpr std::uint64_t kSeed = 20'260'229;
    const char* text = std::getenv("FACETTA_SEED");
    return text == nullptr ? kSeed : std::strtoull(text, nullptr, 10);
}

} // namespace facetta::tests
