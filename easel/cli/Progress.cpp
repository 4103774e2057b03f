#include "easel/cli/Progress.h"

#include "easel/core/HostCalls.h"

#include <utility>

namespace easel {
namespace {

/// Work that is done sooner needs no announcement.
constexpr std::chrono::milliseconds kPatience{700};
constexpr const char* kClearLine = "\r\x1B[K";

} // namespace

Progress::Progress(std::ostream& out, bool watched) : out_(out), watched_(watched) {
    if (watched_) hostCalls().setPulse([this] { show(); });
}

Progress::~Progress() {
    hostCalls().setPulse({});
    if (shown_) out_ << kClearLine << std::flush;
}

void Progress::begin(std::string phase) {
    phase_ = std::move(phase);
    show();
}

void Progress::show() {
    if (!watched_ || Clock::now() - began_ < kPatience) return;
    shown_ = true;
    out_ << kClearLine << phase_ << ": " << hostCalls().total() << " host calls" << std::flush;
}

} // namespace easel
