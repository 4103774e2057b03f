#pragma once

#include "host/Handles.h"

#include <bitset>
#include <cstdint>

/// What a plug-in learns from the system and not from the host: which keys are down, and what time
/// it is. A script plays the user, so it says both.

namespace easel {

/// Do scripts run on Windows, where pictures have other letters?
[[nodiscard]] bool onWindows();

/// The keys that are down, by the system's virtual key codes.
using HeldKeys = std::bitset<256>;

/// From now on the plug-in finds exactly these keys down.
void holdKeys(const HeldKeys& keys);

/// From now on the plug-in whose code `library` is finds the script's tick counter in place of the
/// system's: what it shows for a while must not depend on how fast the machine is. `library` is as
/// the system has loaded it.
void takeOverClock(SPPlatformAccessRef library);

/// Lets the script's tick counter move on; otherwise it stands still.
void letTimePass(std::int64_t milliseconds);

} // namespace easel
