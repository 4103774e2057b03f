#pragma once

#include <span>
#include <string>

namespace easel::validate {

/// A drawing in which acts are tried, about 400 by 400 points with its middle at 200, 200.
struct Drawing {
    const char* name;
    std::string (*text)(); ///< As SVG.
};

[[nodiscard]] std::span<const Drawing> drawings();

/// The drawing of that kind with as many leaves as asked for, for what depends on size.
[[nodiscard]] std::string manyLeaves(int count);

/// A drawing of one leaf on a layer that has `entries` of a plug-in, JSON as Easel keeps it; the
/// leaf has `marks`.
[[nodiscard]] std::string leafWithEntries(const std::string& entries, const std::string& marks);

} // namespace easel::validate
