#pragma once

#include "host/Codes.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace easel {

class HostCalls;

/// One slot of one suite, and what has come through it.
struct SlotRecord {
    std::string name;             ///< "Suite.Function".
    HostCalls* counter = nullptr; ///< Counts it with all others.
    bool returnsError = false;
    std::uint64_t calls = 0;
};

/// Makes host calls fail, to show what the plug-in does then. Calls are numbered from 1 since
/// `arm`.
struct FaultPlan {
    enum class Mode { Never, Once, FromThenOn };
    Mode mode = Mode::Never;
    std::uint64_t call = 0; ///< The call to fail, counted over functions that return an error code.
    std::string function;   ///< When not empty, only calls of this "Suite.Function" count.
    AIErr code = kBadParameterErr;
    std::uint64_t second = 0; ///< In mode `Once`, another call to fail; 0: none.
};

/// Everything that the plug-in asks of the host passes through here: counted, timed, and made to
/// fail on demand. Written by the exposed suite functions only.
class HostCalls {
public:
    void arm(FaultPlan plan);
    void disarm();
    /// Did the armed plan make a call fail?
    [[nodiscard]] bool fired() const noexcept { return fired_; }
    /// Calls of functions that return an error code, since `arm`.
    [[nodiscard]] std::uint64_t fallibleCalls() const noexcept { return fallibleCalls_; }

    /// The host function that is running, the innermost one; null while the plug-in is not in one.
    [[nodiscard]] const SlotRecord* current() const noexcept { return current_; }

    [[nodiscard]] std::uint64_t total() const noexcept { return total_; }
    /// Time spent inside host functions called by the plug-in; grows only while timing is on.
    [[nodiscard]] double seconds() const noexcept { return 1e-9 * static_cast<double>(time_); }
    void setTiming(bool on) noexcept { timing_ = on; }
    void resetCounts() noexcept;

    /// Keeps the names of the calls in order while on, for tests of what must happen in order.
    void setRecording(bool on);
    [[nodiscard]] const std::vector<const SlotRecord*>& recorded() const noexcept {
        return recorded_;
    }

    /// Called again and again while calls come, for a sign of life in long work; empty: never.
    void setPulse(std::function<void()> pulse) { pulse_ = std::move(pulse); }
    static constexpr std::uint64_t kCallsPerPulse = 1 << 16;

    // For the exposed functions.
    /// Counts the call; true when it is to fail with `faultCode()`.
    [[nodiscard]] bool enter(SlotRecord& slot);
    /// `outer` is what `current()` was before `enter`.
    void leave(const SlotRecord* outer) noexcept;
    [[nodiscard]] AIErr faultCode() const noexcept { return plan_.code; }

private:
    [[nodiscard]] bool planned(const SlotRecord& slot);

    FaultPlan plan_;
    bool fired_ = false;
    bool timing_ = false;
    bool recording_ = false;
    const SlotRecord* current_ = nullptr;
    int depth_ = 0; ///< A host function may call the plug-in, which calls the host again.
    std::uint64_t total_ = 0;
    std::uint64_t fallibleCalls_ = 0;
    std::function<void()> pulse_;
    // In nanoseconds, because nearly every source includes this header and <chrono> is a large one.
    std::int64_t time_ = 0;
    std::int64_t entered_ = 0;
    std::vector<const SlotRecord*> recorded_;
};

} // namespace easel
