#pragma once

namespace easel {

/// How a program ends; scripts rely on the numbers.
enum class ExitStatus : int {
    Done = 0,
    Fault = 1, ///< The input, the drawing or the plug-in is at fault: a line on standard error.
    Usage = 2, ///< The command line is.
};

} // namespace easel
