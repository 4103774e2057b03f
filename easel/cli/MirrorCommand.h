#pragma once

#include "easel/cli/MirrorSession.h"

#include <filesystem>
#include <ostream>

namespace easel {

/// How a program ends; scripts rely on the numbers.
enum class ExitStatus : int {
    Done = 0,
    Fault = 1, ///< The input, the drawing or the plug-in is at fault: a line on standard error.
    Usage = 2, ///< The command line is.
};

struct MirrorCommand {
    MirrorRequest request;
    std::filesystem::path input;
    std::filesystem::path output;
    std::filesystem::path picture; ///< PNG of the result; empty: none.
    std::filesystem::path plugin;  ///< Empty: the default.
    bool statistics = false;       ///< One JSON object on `out`.
};

/// `easel mirror`. What is wrong is told on `error`, a line each.
[[nodiscard]] ExitStatus runMirror(const MirrorCommand& command, std::ostream& out,
                                   std::ostream& error);

} // namespace easel
