#pragma once

#include "easel/svg/Outline.h"

#include <string>
#include <string_view>

/// The `d` attribute of a path, as the curves that it draws.
namespace easel::svg {

/// What `d` draws, and where it went wrong: SVG draws everything before the first mistake.
struct PathData {
    Outline outline;
    std::string error; ///< Empty when all of it was understood.
};

/// All commands, absolute and relative, repeated without their letter. Quadratic curves become
/// cubic ones, arcs pieces of at most a quarter turn.
[[nodiscard]] PathData parsePathData(std::string_view text);

} // namespace easel::svg
