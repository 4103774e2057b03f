#pragma once

#include "host/Types.h"

#include <bitset>
#include <cstdint>

/// What a plug-in learns from the system and not from the host: which keys are down, and what time
/// it is. A script plays the user, so it says both.

namespace easel {

/// The keys that are down, by the system's virtual key codes.
using HeldKeys = std::bitset<256>;

/// From now on the plug-in finds exactly these keys down.
void holdKeys(const HeldKeys& keys);

/// Lets the system's tick counter move on. Where the counter cannot be moved, that takes as long as
/// it says.
void letTimePass(std::int64_t milliseconds);

} // namespace easel
