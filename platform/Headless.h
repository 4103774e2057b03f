#pragma once

/// What stands in for keyboard, clock and desktop where there are none.
///
/// The program that runs the code may stand for the keyboard and the clock: when it exports
/// `bool headlessKeyIsDown(unsigned virtualKey)` and `uint64_t headlessTicks()` (C linkage), they
/// are asked. Otherwise, and for the rest, it is what `surroundings` says.

#include "platform/Platform.h"

#include <optional>
#include <string>
#include <vector>

namespace facetta::platform::headless {

/// No key is down, time is the machine's, until somebody says otherwise.
struct Surroundings {
    KeyState keys;
    std::optional<ai::uint64> ticks; ///< A clock that stands still.
    std::optional<std::u16string> moduleFileName;
    std::vector<std::u16string> opened;
    std::vector<std::u16string> shownMessages;
};

[[nodiscard]] Surroundings& surroundings() noexcept;

} // namespace facetta::platform::headless
