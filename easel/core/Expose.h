#pragma once

#include "easel/core/HostCalls.h"
#include "easel/core/SuiteServer.h"
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

/// What a call that is made to fail does first: nothing.
struct FailsUntouched {
    static void fail(auto&&...) {}
};

/// For calls that end a loan: made to fail, such a call ends it all the same and only answers a
/// code. What a host does is not published. But a plug-in cannot give a reference back twice, and
/// one left over would count as its leak, so that no other choice lets every call be tried.
template <auto Function> struct FailsWhenDone {
    static void fail(auto&&... arguments) { static_cast<void>(Function(arguments...)); }
};

template <auto Slot, auto Function, typename Failing> struct Exposed;

template <typename Suite, typename Result, typename... Arguments,
          Result (*Suite::*Slot)(Arguments...), Result (*Function)(Arguments...), typename Failing>
struct Exposed<Slot, Function, Failing> {
    static inline SlotRecord* record = nullptr;

    static Result call(Arguments... arguments) {
        const HostCallScope scope{*record};
        try {
            if constexpr (std::is_same_v<Result, AIErr>) {
                if (scope.fails()) {
                    Failing::fail(arguments...);
                    return hostCalls().faultCode();
                }
            }
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

template <auto Slot, auto Function, typename Failing = FailsUntouched, typename Suite>
void expose(SuiteTable<Suite>& table) {
    using Thunk = Exposed<Slot, Function, Failing>;
    Thunk::record = &table.record(Slot);
    table.functions().*Slot = &Thunk::call;
}

/// For a function that gives back what the plug-in was lent.
template <auto Slot, auto Function, typename Suite> void exposeEnding(SuiteTable<Suite>& table) {
    expose<Slot, Function, FailsWhenDone<Function>>(table);
}

} // namespace easel
