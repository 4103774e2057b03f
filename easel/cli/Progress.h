#pragma once

#include "easel/core/HostCalls.h"

#include <chrono>
#include <ostream>
#include <string>

namespace easel {

/// One line that tells a waiting user what is being done. Nothing is shown unless somebody watches,
/// nor before the work has proved to be long.
class Progress {
public:
    Progress(HostCalls& calls, std::ostream& out, bool watched);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void begin(std::string phase);

private:
    using Clock = std::chrono::steady_clock;
    void show();

    HostCalls& calls_;
    std::ostream& out_;
    std::string phase_;
    Clock::time_point began_ = Clock::now();
    bool watched_;
    bool shown_ = false;
};

} // namespace easel
