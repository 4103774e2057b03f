#pragma once

#include "easel/cli/ExitStatus.h"
#include "easel/validate/Options.h"

#include "easel/document/Session.h"

#include <ostream>

namespace easel {

struct ValidateCommand {
    validate::Options options; ///< Without a plug-in: the default.
    bool json = false;         ///< One JSON object on `out`, at the end.
    bool here = false;         ///< In this process, as children do.
};

/// `easel validate`: a line on `out` for each check, and for each fault what was tried and the
/// command that tries it again. `Fault` when there is any.
[[nodiscard]] ExitStatus runValidate(Session& session, ValidateCommand command, std::ostream& out,
                                     std::ostream& error);

} // namespace easel
