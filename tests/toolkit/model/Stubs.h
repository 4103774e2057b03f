#pragma once

#include <span>
#include <tuple>
#include <type_traits>

namespace facetta::tests {

/// A slot that a suite's unit fills with a stub.
struct StubSlot {
    const char* name; ///< "ADMItemSuite::SetNextFocus in ADMItemSuite", by the name of the slot
    void (*call)();   ///< with nothing for each argument
};

/// Written by Stubs.cmake from the units.
[[nodiscard]] std::span<const StubSlot> stubSlots();

template <typename Result, typename... Arguments> void callStub(Result (*stub)(Arguments...)) {
    std::tuple<std::remove_cvref_t<Arguments>...> nothing{};
    std::apply(stub, nothing);
}

} // namespace facetta::tests
