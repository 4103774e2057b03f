#pragma once

#include "easel/runtime/Library.h"

#include <filesystem>

namespace facetta::fuzz {

/// The plug-in's library as built. It is loaded once and for good: starting it anew is what is
/// tried, and a fuzzer cannot watch code that comes and goes.
inline const std::filesystem::path& pluginLibrary() {
    static const std::filesystem::path file = FACETTA_LIBRARY;
    static const easel::Library held(file);
    return file;
}

} // namespace facetta::fuzz
