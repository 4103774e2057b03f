#include "bench/Memory.h"

#include <malloc.h>

#include <fstream>
#include <limits>
#include <string>

namespace facetta::bench {
namespace {

constexpr double kKibibyte = 1024;

/// A line of the system's account of this process, such as "VmRSS:  1234 kB".
double statusBytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kibibytes = 0;
        if (word == name + ':' && status >> kibibytes) return kibibytes * kKibibyte;
    }
    return std::numeric_limits<double>::quiet_NaN();
}

} // namespace

double heapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

double residentBytes() { return statusBytes("VmRSS"); }

double peakBytes() { return statusBytes("VmHWM"); }

void forgetPeak() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5; // see proc(5)
}

} // namespace facetta::bench
