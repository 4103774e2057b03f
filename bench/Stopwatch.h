#pragma once

#include <chrono>
#include <ctime>

namespace facetta::bench {

[[nodiscard]] inline double secondsOf(std::chrono::nanoseconds time) {
    return std::chrono::duration<double>(time).count();
}

/// Runs from its making on.
class Stopwatch {
public:
    /// By the clock on the wall.
    [[nodiscard]] double seconds() const {
        return secondsOf(std::chrono::steady_clock::now() - start_);
    }
    /// What this thread has computed: other programs that take the processor away do not count.
    [[nodiscard]] double processorSeconds() const { return processorNow() - processorStart_; }

private:
    [[nodiscard]] static double processorNow() {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
    }

    double processorStart_ = processorNow();
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace facetta::bench
