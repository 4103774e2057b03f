#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace facetta::fuzz {

/// Stops the program unless `holds`, which is how a fuzzer is told of a fault. `shown` goes with
/// it.
inline void require(bool holds, const char* what, const std::string& shown = {}) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n%s%s", what, shown.c_str(), shown.empty() ? "" : "\n");
    std::abort();
}

} // namespace facetta::fuzz
