#pragma once

#include "host/Types.h"

#include <cstddef>
#include <span>
#include <string>

namespace easel {

/// What a plug-in's property list tells before any of its code runs.
struct PluginDescription {
    std::string name;           ///< Empty when the list has no name.
    std::string entry;          ///< The exported function that takes messages.
    ai::int32 messageFlags = 0; ///< `kSkipShutdownMessage` and the like.
};

/// Bits of `messageFlags`.
inline constexpr ai::int32 kSkipShutdownMessage = 2;
inline constexpr ai::int32 kAcceptsPurgeMessage = 4;

/// Reads the property list `bytes`, a resource of type PIPL. Throws `ai::Error`: 'CPPL' when it is
/// damaged or misses what every plug-in needs, 'NSPP' when it describes another kind of thing.
///
///   [word 1] version 0, count, then count times: vendor, key, id, length, data padded to 4.
///
/// All numbers are little-endian. The leading word is what linkers for Windows put there; a list
/// that starts with its version is read as well.
[[nodiscard]] PluginDescription parsePiPL(std::span<const std::byte> bytes);

} // namespace easel
