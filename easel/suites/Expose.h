#pragma once

#include "easel/core/HostCalls.h"
#include "easel/suites/SuiteServer.h"
#include "host/Error.h"

#include <type_traits>

/// Puts a function of Easel into a slot of a suite: `expose<&AIArtSuite::NewArt, newArt>(table)`.
///
/// What the plug-in then calls is a thunk that counts the call, makes it fail when a fault plan
/// says so, and turns an exception into the host's error code, so that none crosses the interface.
/// A function whose result is no error code answers a zero result instead.

namespace easel {

/// Counts one call from entry to exit.
class HostCallScope {
public:
    explicit HostCallScope(SlotRecord& slot)
        : outer_(hostCalls().current()), fails_(hostCalls().enter(slot)) {}
    ~HostCallScope() { hostCalls().leave(outer_); }
    HostCallScope(const HostCallScope&) = delete;
    HostCallScope& operator=(const HostCallScope&) = delete;
    [[nodiscard]] bool fails() const noexcept { return fails_; }

private:
    const SlotRecord* outer_;
    bool fails_;
};

template <auto Slot, auto Function> struct Exposed;

template <typename Suite, typename Result, typename... Arguments,
          Result (*Suite::*Slot)(Arguments...), Result (*Function)(Arguments...)>
struct Exposed<Slot, Function> {
    static inline SlotRecord* record = nullptr;

    static Result call(Arguments... arguments) {
        const HostCallScope scope{*record};
        if constexpr (std::is_same_v<Result, AIErr>) {
            if (scope.fails()) return hostCalls().faultCode();
        }
        try {
            return Function(arguments...);
        } catch (...) {
            if constexpr (std::is_same_v<Result, AIErr>) {
                const AIErr code = ai::currentErrorCode();
                return record->returnsError ? code : 0;
            } else if constexpr (!std::is_void_v<Result>) {
                return Result{};
            }
        }
    }
};

template <auto Slot, auto Function, typename Suite> void expose(SuiteTable<Suite>& table) {
    using Thunk = Exposed<Slot, Function>;
    Thunk::record = &table.record(Slot);
    table.functions().*Slot = &Thunk::call;
}

} // namespace easel
