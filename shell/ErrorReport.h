#pragma once

#include "host/Codes.h"
#include "host/Handles.h"

#include <string>

namespace facetta {

/// Codes that are answers rather than failures, or that the user can do nothing about.
[[nodiscard]] bool isSilent(AIErr code);

/// How a code is written: four characters for codes of 16385 or more, else a number.
[[nodiscard]] std::string codeText(AIErr code);

/// What the user reads about `code`.
[[nodiscard]] std::string errorText(AIErr code);

/// Shows `code` in a modal alert, unless it is silent. What cannot be shown is let go.
void showError(AIErr code) noexcept;

/// Keeps one failure from being shown again and again: the code last shown is not shown once more
/// within `timeout`.
class ErrorReporter {
public:
    void report(AIErr code) noexcept;

private:
    AIErr lastCode_ = kNoErr;
    ai::uint64 lastTime_ = 0; ///< seconds
    ai::uint64 timeout_ = 5;  ///< seconds
    bool suppressDuplicates_ = true;
};

} // namespace facetta
