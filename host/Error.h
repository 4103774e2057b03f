#pragma once

#include "host/Codes.h"

#include <exception>

namespace ai {

/// A failed host call on its way to the entry. Never crosses the host's interface.
struct Error : std::exception {
    explicit Error(AIErr errorCode) noexcept : code(errorCode) {}
    [[nodiscard]] const char* what() const noexcept override { return "host call failed"; }
    AIErr code;
};

/// Throws `Error` unless `code` is success.
inline void check(AIErr code) {
    if (code != kNoErr) throw Error(code);
}

/// The code of the exception in flight; to be called inside a catch block only, and only where
/// foreign code calls us. Out of memory is '!MEM', whatever is not ours is 'CANT'.
[[nodiscard]] AIErr currentErrorCode() noexcept;

/// Runs `work` and answers its code, or the code of what it threw.
template <typename Work> [[nodiscard]] AIErr codeOf(const Work& work) noexcept {
    try {
        return work();
    } catch (...) {
        return currentErrorCode();
    }
}

} // namespace ai
