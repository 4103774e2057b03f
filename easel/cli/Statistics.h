#pragma once

#include "easel/session/Inventory.h"

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace easel {

/// Seconds spent in the phases of a command, in the order in which they began.
class Stopwatch {
public:
    /// Ends the phase before.
    void begin(std::string phase);
    void end();
    [[nodiscard]] const std::vector<std::pair<std::string, double>>& phases() const noexcept {
        return phases_;
    }

private:
    using Clock = std::chrono::steady_clock;
    std::vector<std::pair<std::string, double>> phases_;
    Clock::time_point began_;
    bool running_ = false;
};

struct Statistics {
    Inventory before;
    Inventory after;
    std::uint64_t hostCalls = 0;
    Stopwatch time;
};
/// One JSON object on one line.
[[nodiscard]] std::string toJson(const Statistics& statistics);

} // namespace easel
