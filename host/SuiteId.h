#pragma once

#include "host/Types.h"

#include <array>

namespace ai {

/// For a suite that is good in one version only.
inline constexpr std::array<ai::int32, 0> kNoFallbacks{};

/// What a suite is asked for by: its name, its version, and the versions that do as well because
/// the slots in use are the same, in the order in which they are tried.
template <const char* Name, ai::int32 Version, const auto& Fallbacks = kNoFallbacks>
struct SuiteIdentity {
    static constexpr const char* name = Name;
    static constexpr ai::int32 version = Version;
    static constexpr const auto& fallbacks = Fallbacks;
};

/// The identity of the suite with these functions; said in its header.
template <typename Suite> struct SuiteId;

} // namespace ai
