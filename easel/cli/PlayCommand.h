#pragma once

#include "easel/cli/ExitStatus.h"

#include "easel/document/Session.h"

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace easel {

struct PlayCommand {
    std::vector<std::filesystem::path> scripts; ///< A folder stands for all "*.play" in it.
    std::filesystem::path output = ".";         ///< Where results and kept pictures go.
    std::filesystem::path plugin;               ///< Empty: the default.
    std::vector<std::string> turned;            ///< Switches of the host to turn the other way.
};

/// `easel play`: a line on `out` for each script that went as it should; on `error` one for all
/// else. `Fault` when any script has a mistake or did not go as it should.
[[nodiscard]] ExitStatus runPlay(Session& session, const PlayCommand& command, std::ostream& out,
                                 std::ostream& error);

} // namespace easel
