#pragma once

#include "easel/core/HostCalls.h"
#include "easel/core/SuiteServer.h"
#include "host/Error.h"

#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

/// Puts a function of Easel into a slot of a suite: `expose<&AIArtSuite::NewArt, newArt>(server)`.
///
/// What the plug-in then calls is a thunk that counts the call, makes it fail when a fault plan
/// says so, and turns an exception into the host's error code, so that none crosses the interface.
/// A call that fails leaves nothing of use in what it would have written.
/// A function whose result is no error code answers a zero result instead.
///
/// Where the slot answers a code, the function may be written without it, since what goes wrong is
/// thrown: it returns nothing, or it returns what the last argument of the slot leads to and goes
/// without that argument, which is then checked before it runs.

namespace easel {

/// What a pointer argument that must not be null leads to; throws 'PARM' when it is null.
template <typename Value> [[nodiscard]] Value& required(Value* argument) {
    if (argument == nullptr) throw ai::Error{kBadParameterErr};
    return *argument;
}

/// Counts one call from entry to exit.
class HostCallScope {
public:
    explicit HostCallScope(SlotRecord& slot)
        : calls_(*slot.counter), outer_(calls_.current()), fails_(calls_.enter(slot)) {}
    ~HostCallScope() { calls_.leave(outer_); }
    HostCallScope(const HostCallScope&) = delete;
    HostCallScope& operator=(const HostCallScope&) = delete;
    [[nodiscard]] bool fails() const noexcept { return fails_; }

private:
    HostCalls& calls_;
    const SlotRecord* outer_;
    bool fails_;
};

/// Fills a number or handle that a failing call would have written with 0xCD: a host promises
/// nothing about it, and a caller that reads it is found out.
template <typename Argument> void spoil(Argument argument) noexcept {
    if constexpr (std::is_pointer_v<Argument>) {
        using Output = std::remove_pointer_t<Argument>;
        constexpr bool isOutput = !std::is_const_v<Output> && !std::is_same_v<Output, char> &&
                                  (std::is_arithmetic_v<Output> || std::is_pointer_v<Output>);
        if constexpr (isOutput)
            if (argument != nullptr) std::memset(argument, 0xCD, sizeof(Output));
    }
}

/// What a call that is made to fail does first: nothing.
struct FailsUntouched {
    static void fail(auto&&...) {}
};

/// For calls that are promised to leave alone what the caller has set beforehand.
struct FailsWithPresets {
    static constexpr bool kKeepsOutputs = true;
    static void fail(auto&&...) {}
};

/// For calls whose last argument, which says where to put what was made, may be null.
struct OutputMayBeNull : FailsUntouched {
    static constexpr bool kMayBeNull = true;
};

/// For calls that end a loan: made to fail, such a call ends it all the same and only answers a
/// code. What a host does is not published. But a plug-in cannot give a reference back twice, and
/// one left over would count as its leak, so that no other choice lets every call be tried.
template <auto Function> struct FailsWhenDone {
    static constexpr bool kKeepsOutputs = true; // they are what was given back
    static void fail(auto&&... arguments) { static_cast<void>(Function(arguments...)); }
};

template <auto Slot, auto Function, typename Failing> struct Exposed;

template <typename Suite, typename Result, typename... Arguments,
          Result (*Suite::*Slot)(Arguments...), auto Function, typename Failing>
struct Exposed<Slot, Function, Failing> {
    using Owner = Suite;
    static inline SlotRecord* record = nullptr;

    static Result call(Arguments... arguments) {
        const HostCallScope scope{*record};
        if constexpr (std::is_same_v<Result, AIErr>) {
            const AIErr code = codeOf(scope, arguments...);
            if (!record->returnsError) return code; // a number of another meaning
            if constexpr (!requires { Failing::kKeepsOutputs; })
                if (code != kNoErr) (spoil(addressOf(arguments)), ...);
            return code;
        } else {
            try {
                return Function(arguments...);
            } catch (...) {
                if constexpr (!std::is_void_v<Result>) return Result{};
            }
        }
    }

private:
    static AIErr codeOf(const HostCallScope& scope, Arguments... arguments) {
        try {
            if (scope.fails()) {
                Failing::fail(arguments...);
                return record->counter->faultCode();
            }
            return answer(arguments...);
        } catch (...) {
            const AIErr code = ai::currentErrorCode();
            return record->returnsError ? code : 0;
        }
    }

    static AIErr answer(Arguments... arguments) {
        if constexpr (!std::is_invocable_v<decltype(Function), Arguments...>) {
            give(std::make_index_sequence<sizeof...(Arguments) - 1>{},
                 std::forward_as_tuple(arguments...));
        } else if constexpr (std::is_void_v<decltype(Function(arguments...))>) {
            Function(arguments...);
        } else {
            return Function(arguments...);
        }
        return kNoErr;
    }

    template <std::size_t... Index, typename All>
    static void give(std::index_sequence<Index...> /*indexes*/, const All& arguments) {
        auto& last = std::get<sizeof...(Index)>(arguments);
        using Last = std::tuple_element_t<sizeof...(Index), std::tuple<Arguments...>>;
        if constexpr (std::is_reference_v<Last>) {
            last = Function(std::get<Index>(arguments)...);
        } else if constexpr (requires { Failing::kMayBeNull; }) {
            const auto made = Function(std::get<Index>(arguments)...);
            if (last != nullptr) *last = made;
        } else {
            auto& output = required(last);
            output = Function(std::get<Index>(arguments)...);
        }
    }

    /// Objects that come by reference are no plain output.
    template <typename Argument> static auto addressOf(Argument& argument) noexcept {
        if constexpr (std::is_pointer_v<Argument>)
            return argument;
        else
            return nullptr;
    }
};

template <auto Slot, auto Function, typename Failing = FailsUntouched, typename Suite>
void expose(SuiteTable<Suite> table) {
    using Thunk = Exposed<Slot, Function, Failing>;
    Thunk::record = &table.record(Slot);
    table.functions().*Slot = &Thunk::call;
}
template <auto Slot, auto Function, typename Failing = FailsUntouched>
void expose(SuiteServer& server) {
    expose<Slot, Function, Failing>(
        server.table<typename Exposed<Slot, Function, Failing>::Owner>());
}

/// For a function that gives back what the plug-in was lent.
template <auto Slot, auto Function> void exposeEnding(auto& where) {
    expose<Slot, Function, FailsWhenDone<Function>>(where);
}

} // namespace easel
