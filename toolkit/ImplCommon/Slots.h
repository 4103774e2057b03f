#pragma once

/// Rows of the tables of functions. `call<&CoADMItem::setUnits>` is a slot that calls a member
/// function; `Stub` is one that the toolkit does not offer. Each takes the signature of the slot
/// that it is put into.

#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/ImplCommon/Text.h"
#include "toolkit/suites/ADMTypes.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>

namespace NRDM {

/// What `reference` stands for. Throws `NRDMParameterException` for none.
template <typename Object> Object& objectOf(Object* reference) {
    if (reference == nullptr) throw NRDMParameterException();
    return *reference;
}

[[nodiscard]] inline Bounds boundsOf(const ADMRect* rect) {
    const auto& [left, top, right, bottom] = objectOf(rect);
    return {left, top, right, bottom};
}
[[nodiscard]] constexpr ADMRect rectOf(const Bounds& bounds) {
    return {bounds.left, bounds.top, bounds.right, bounds.bottom};
}
namespace slots {

template <typename Result, typename... Arguments> using Function = Result (*)(Arguments...);

/// Texts and rectangles come in as pointers.
template <typename Argument> auto passed(Argument argument) { return argument; }
inline std::string passed(const char* text) { return textFrom(text); }
inline std::string passed(const ADMUnicode* text) { return textFrom(text); }
inline Bounds passed(const ADMRect* rect) { return boundsOf(rect); }

/// A text in a template's arguments.
template <std::size_t Size> struct Name {
    std::array<char, Size> text{};
    // NOLINTNEXTLINE(google-explicit-constructor): a name is written as a literal
    constexpr Name(const char (&literal)[Size]) { std::copy_n(literal, Size, text.begin()); }
};

/// Prints "Not implemented: ..." and throws `NRDMNotImpl`.
[[noreturn]] void reportStub(const char* unit, const char* function);

} // namespace slots

template <auto Callee> struct Call {
    template <typename Result, typename Reference, typename... Arguments>
    // NOLINTNEXTLINE(google-explicit-constructor): becomes whatever slot it is put into
    constexpr operator slots::Function<Result, Reference, Arguments...>() const {
        return [](Reference reference, Arguments... arguments) -> Result {
            return static_cast<Result>(
                std::invoke(Callee, objectOf(reference), slots::passed(arguments)...));
        };
    }
};
template <auto Callee> inline constexpr Call<Callee> call{};

/// For slots that put a value into a public member: `call<&assign<CoADMItem,
/// &CoADMItem::userData>>`. A public member itself reads one: `call<&CoADMItem::userData>`.
template <typename Object, auto Member>
using MemberType = std::remove_reference_t<decltype(std::declval<Object&>().*Member)>;
template <typename Object, auto Member>
void assign(Object& object, MemberType<Object, Member> value) {
    object.*Member = value;
}

/// The same for a client's procedures.
template <typename Object, auto Member>
using ProcedureType = std::remove_reference_t<decltype(std::declval<Object&>().procedures.*Member)>;
template <typename Object, auto Member>
void setProcedure(Object& object, ProcedureType<Object, Member> procedure) {
    object.procedures.*Member = procedure;
}
template <typename Object, auto Member> ProcedureType<Object, Member> procedureOf(Object& object) {
    return object.procedures.*Member;
}

/// Function `slot` of the suite that `unit` is the source of.
template <slots::Name unit, slots::Name slot> struct Stub {
    template <typename Result, typename... Arguments>
    // NOLINTNEXTLINE(google-explicit-constructor): becomes whatever slot it is put into
    constexpr operator slots::Function<Result, Arguments...>() const {
        return
            [](Arguments...) -> Result { slots::reportStub(unit.text.data(), slot.text.data()); };
    }
};

} // namespace NRDM
