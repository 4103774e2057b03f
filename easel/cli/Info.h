#pragma once

#include "easel/document/Session.h"

#include <filesystem>
#include <ostream>

namespace easel {

struct InfoOptions {
    std::filesystem::path file;
    bool json = false; ///< One JSON object instead of lines.
};

/// `easel info`: the layers of a drawing, the symmetry axes stored on them, how much art of each
/// kind there is, generated copies and axis guides. Returns 0. Throws svg::FileError when the file
/// cannot be read; what was understood only in part goes to standard error.
int runInfo(Session& session, const InfoOptions& options, std::ostream& out);

} // namespace easel
