#pragma once

#include "easel/core/Registry.h"
#include "host/Handles.h"

#include <cstdint>
#include <string>

namespace easel {

struct Timer {
    SPPluginRef plugin;
    std::string name;
    ai::int32 period;  ///< In ticks.
    std::int64_t next; ///< The tick at which it is due.
    bool active = true;
};

inline constexpr std::int64_t kTicksPerSecond = 60;

/// The host's clock. It stands still until it is moved, so that what happens in a session depends
/// on nothing but what is done in it; a window moves it with real time.
class Clock {
public:
    void advance(std::int64_t milliseconds) noexcept { milliseconds_ += milliseconds; }
    [[nodiscard]] std::int64_t milliseconds() const noexcept { return milliseconds_; }
    [[nodiscard]] std::int64_t ticks() const noexcept {
        return milliseconds_ * kTicksPerSecond / 1000;
    }

private:
    std::int64_t milliseconds_ = 0;
};

class Sender;

class Timers : public Registry<AITimerHandle, Timer> {
public:
    /// Sends a message for each active one that is due.
    void run(Sender& sender, const Clock& clock);
};

} // namespace easel
