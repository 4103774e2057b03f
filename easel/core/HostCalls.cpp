#include "easel/core/HostCalls.h"

#include <cassert>
#include <chrono>
#include <thread>

namespace easel {
namespace {

/// The only one that may call.
const std::thread::id kHostThread = std::this_thread::get_id();

std::int64_t now() noexcept {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(sinceStart).count();
}

} // namespace

void HostCalls::arm(FaultPlan plan) {
    plan_ = std::move(plan);
    fired_ = false;
    fallibleCalls_ = 0;
}

void HostCalls::disarm() { plan_ = {}; }

void HostCalls::resetCounts() noexcept {
    total_ = 0;
    time_ = 0;
}

void HostCalls::setRecording(bool on) {
    recording_ = on;
    if (on) recorded_.clear();
}

bool HostCalls::planned(const SlotRecord& slot) {
    if (!slot.returnsError) return false;
    if (!plan_.function.empty() && plan_.function != slot.name) return false;
    ++fallibleCalls_;
    switch (plan_.mode) {
    case FaultPlan::Mode::Never:
        return false;
    case FaultPlan::Mode::Once:
        return fallibleCalls_ == plan_.call || fallibleCalls_ == plan_.second;
    case FaultPlan::Mode::FromThenOn:
        return fallibleCalls_ >= plan_.call;
    }
    return false;
}

bool HostCalls::enter(SlotRecord& slot) {
    assert(kHostThread == std::this_thread::get_id());
    ++slot.calls;
    ++total_;
    if (total_ % kCallsPerPulse == 0 && pulse_) pulse_();
    if (recording_) recorded_.push_back(&slot);
    const bool fails = planned(slot);
    fired_ = fired_ || fails;
    if (timing_ && depth_ == 0) entered_ = now();
    ++depth_;
    current_ = &slot;
    return fails;
}

void HostCalls::leave(const SlotRecord* outer) noexcept {
    --depth_;
    current_ = outer;
    if (timing_ && depth_ == 0) time_ += now() - entered_;
}

} // namespace easel
