#include "easel/cli/Progress.h"

#include <utility>

namespace easel {
namespace {

/// Work that is done sooner needs no announcement.
constexpr std::chrono::milliseconds kPatience{700};
constexpr const char* kClearLine = "\r\x1B[K";

} // namespace

Progress::Progress(HostCalls& calls, std::ostream& out, bool watched)
    : calls_(calls), out_(out), watched_(watched) {
    if (watched_) calls_.setPulse([this] { show(); });
}

Progress::~Progress() {
    calls_.setPulse({});
    if (shown_) out_ << kClearLine << std::flush;
}

void Progress::begin(std::string phase) {
    phase_ = std::move(phase);
    show();
}

void Progress::show() {
    if (!watched_ || Clock::now() - began_ < kPatience) return;
    shown_ = true;
    out_ << kClearLine << phase_ << ": " << calls_.total() << " host calls" << std::flush;
}

} // namespace easel
