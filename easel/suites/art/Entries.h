#pragma once

#include "easel/document/Dictionary.h"
#include "host/Handles.h"

/// What the dictionary and entry suites share: values as counted entries, and reading a
/// value as one type.

namespace easel {

/// A value in the plug-in's hands.
class HeldEntry final : public Counted {
public:
    explicit HeldEntry(Value content) noexcept
        : Counted(HandleKind::Entry, Lent::Entry), value(std::move(content)) {}
    const Value value;
};

/// A new entry, lent to the plug-in.
[[nodiscard]] AIEntryRef lendEntry(Value value);
/// Null throws 'EnNS', a stale or invented one 'PARM'.
[[nodiscard]] HeldEntry& entryOf(AIEntryRef entry);
/// The value of an entry, whose reference ends.
[[nodiscard]] Value consume(AIEntryRef entry);

/// For calls that consume an entry: they do so before anything can fail, and also when made to.
struct FailsConsuming {
    static void fail(auto&&... arguments) { (drop(arguments), ...); }

private:
    static void drop(AIEntryRef entry) { static_cast<void>(consume(entry)); }
    static void drop(const auto&) {}
};

[[nodiscard]] Dictionary& dictionaryOf(ConstAIDictionaryRef dictionary);
[[nodiscard]] AIDictionaryRef lend(const Ref<Dictionary>& dictionary);

[[noreturn]] void throwWrongEntryType();

/// `value` as a `T`; throws the code of a wrong type.
template <typename T> [[nodiscard]] const T& valueAs(const Value& value) {
    const T* content = std::get_if<T>(&value);
    if (content == nullptr) throwWrongEntryType();
    return *content;
}

} // namespace easel
