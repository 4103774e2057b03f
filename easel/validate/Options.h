#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace easel::validate {

/// What `easel validate` is asked for.
struct Options {
    std::filesystem::path plugin; ///< The library.
    int strictness = 3;           ///< 1 to 5: how much is tried.
    std::uint64_t seed = 1;       ///< Of everything that is chosen at random.
    std::uint64_t from = 1;       ///< The first try.
    std::uint64_t count = 0;      ///< The most tries of a check; 0: all.
    std::string only;             ///< The check; empty: all.
};

} // namespace easel::validate
