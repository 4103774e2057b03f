#pragma once

#include "host/Error.h"
#include "host/Owned.h"

namespace ai {

/// Throws `Error` unless the call that was to fill `owner` by `put` has succeeded. A call that
/// fails has lent nothing, whatever it has left behind: that is not given back.
template <typename Traits> void checkLent(AIErr code, Owned<Traits>& owner) {
    if (code == kNoErr) return;
    static_cast<void>(owner.release());
    throw Error(code);
}

/// Whether the call that was to give `handle` has succeeded. Otherwise there is none, whatever the
/// call has left behind.
template <typename Handle> [[nodiscard]] bool isGiven(AIErr code, Handle*& handle) noexcept {
    if (code != kNoErr) handle = nullptr;
    return code == kNoErr;
}

} // namespace ai
