#include "easel/document/Value.h"

#include "easel/document/Dictionary.h"

#include <algorithm>
#include <iterator>

namespace easel {
namespace {

/// By the place of a type among the alternatives of `Value`.
constexpr AIEntryType kTypes[] = {
    kUnknownEntry, kIntegerEntry,    kBooleanEntry,       kRealEntry,
    kStringEntry,  kDictionaryEntry, kArrayEntry,         kBinaryEntry,
    kPointEntry,   kMatrixEntry,     kUnicodeStringEntry, kPointerEntry,
};
static_assert(std::size(kTypes) == std::variant_size_v<Value>);

bool same(std::monostate, std::monostate) { return true; }
bool same(ai::int32 a, ai::int32 b) { return a == b; }
bool same(Boolean a, Boolean b) { return a == b; }
bool same(AIReal a, AIReal b) { return a == b; }
bool same(Pointer a, Pointer b) { return a == b; }
bool same(const AIRealPoint& a, const AIRealPoint& b) { return a.h == b.h && a.v == b.v; }
bool same(const AIRealMatrix& a, const AIRealMatrix& b) {
    return a.a == b.a && a.b == b.b && a.c == b.c && a.d == b.d && a.tx == b.tx && a.ty == b.ty;
}
template <typename T> bool same(const std::shared_ptr<T>& a, const std::shared_ptr<T>& b) {
    return *a == *b;
}

bool same(const Ref<Dictionary>& a, const Ref<Dictionary>& b) {
    if (a == b) return true;
    return a->items().size() == b->items().size() &&
           std::ranges::all_of(a->items(), [&b](const DictionaryItem& item) {
               const Value* other = b->find(item.key);
               return other != nullptr && equivalent(item.value, *other);
           });
}

bool same(const Ref<Array>& a, const Ref<Array>& b) {
    return a == b || std::ranges::equal(a->values(), b->values(), equivalent);
}

} // namespace

AIEntryType typeOf(const Value& value) noexcept { return kTypes[value.index()]; }

bool equivalent(const Value& a, const Value& b) {
    if (a.index() != b.index()) return false;
    return std::visit(
        [&b](const auto& content) {
            return same(content, std::get<std::decay_t<decltype(content)>>(b));
        },
        a);
}

Value deepCopy(const Value& value) {
    if (const auto* dictionary = std::get_if<Ref<Dictionary>>(&value)) {
        Ref<Dictionary> copy(new Dictionary);
        copy->copyFrom(**dictionary);
        return copy;
    }
    if (const auto* array = std::get_if<Ref<Array>>(&value)) {
        Ref<Array> copy(new Array);
        copy->copyFrom(**array);
        return copy;
    }
    return value; // texts and bytes never change, so they are shared
}

Value textValue(std::string text) { return std::make_shared<const std::string>(std::move(text)); }

Value unicodeValue(std::u16string text) {
    return std::make_shared<const std::u16string>(std::move(text));
}

} // namespace easel
