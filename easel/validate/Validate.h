#pragma once

#include "easel/validate/Checks.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace easel::validate {

/// Something that is not as promised, in one try.
struct Fault {
    std::uint64_t number = 0; ///< Of the try.
    std::string tried;
    std::string found;
    /// How it came about, or what the process wrote before it ended; mostly nothing.
    std::vector<std::string> more;
    std::string command; ///< That makes this try again, alone.
};

/// What came of a check.
struct Result {
    const Check* check = nullptr;
    std::uint64_t tries = 0;
    double seconds = 0;
    std::vector<Fault> faults;
};

/// Runs each check in a child process, natively as many at once as there are processors; one that
/// crashes or hangs is a fault, and its check goes on behind it in another child. `done` is told of
/// each check, in the order of `checks`, when it and those before it have ended. Throws
/// std::invalid_argument when no check has the name in `options.only`.
void runChecks(const Options& options, const std::function<void(const Result&)>& done);

/// What such a child does: the check `options.only` in this process.
void runInThisProcess(Session& session, const Options& options, std::ostream& out);

} // namespace easel::validate
