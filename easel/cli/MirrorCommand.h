#pragma once

#include "easel/cli/ExitStatus.h"
#include "easel/session/MirrorSession.h"

#include <filesystem>
#include <ostream>

namespace easel {

struct MirrorCommand {
    MirrorRequest request;
    std::filesystem::path input;
    std::filesystem::path output;
    std::filesystem::path picture; ///< PNG of the result; empty: none.
    std::filesystem::path plugin;  ///< Empty: the default.
    bool statistics = false;       ///< One JSON object on `out`.
};

/// `easel mirror`. What is wrong is told on `error`, a line each.
[[nodiscard]] ExitStatus runMirror(Session& session, const MirrorCommand& command,
                                   std::ostream& out, std::ostream& error);

} // namespace easel
