#pragma once

#include "easel/document/Document.h"

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace easel {

/// How much a document holds.
struct ArtCounts {
    std::size_t art = 0; ///< Layers left out.
    std::size_t paths = 0;
    std::size_t segments = 0;
};
[[nodiscard]] ArtCounts countArt(const Document& document);

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
    ArtCounts before;
    ArtCounts after;
    std::uint64_t hostCalls = 0;
    Stopwatch time;
};
/// One JSON object on one line.
[[nodiscard]] std::string toJson(const Statistics& statistics);

} // namespace easel
