#pragma once

#include <string_view>

namespace easel {

/// The host's interface as data, embedded when Easel is built: one line a function with suite,
/// version, struct, slot, function, result and arguments, tab-separated, after a line of headings.
extern const std::string_view kSuiteSlots;
/// Suites of which only name and version are known: one line each, after a line of headings.
extern const std::string_view kTextSuites;

} // namespace easel
