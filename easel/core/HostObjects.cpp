#include "easel/core/HostObjects.h"

#include "easel/core/Text.h"

#include <memory>
#include <utility>

namespace easel {
namespace {

template <typename Holder> void*& pointerIn(Holder& holder) noexcept {
    return reinterpret_cast<void*&>(holder);
}

/// Null for one never set. Throws 'PARM' when it is not one of ours or was destroyed.
template <typename Object, Lent kind, typename Holder>
Object* objectIn(Ledger& ledger, const Holder& holder) {
    void* const object = reinterpret_cast<void* const&>(holder);
    if (object != nullptr) ledger.require(kind, object);
    return static_cast<Object*>(object);
}

/// Makes the object when there is none.
template <typename Object, Lent kind, typename Holder>
void setObject(Ledger& ledger, Holder& holder, Object value) {
    if (Object* const known = objectIn<Object, kind>(ledger, holder)) {
        *known = std::move(value);
        return;
    }
    auto object = std::make_unique<Object>(std::move(value));
    ledger.lend(kind, object.get());
    pointerIn(holder) = object.release();
}

template <typename Object, Lent kind, typename Holder>
void destroyObject(Ledger& ledger, Holder& holder) {
    void* const object = std::exchange(pointerIn(holder), nullptr);
    if (object == nullptr) return;
    ledger.takeBack(kind, object);
    delete static_cast<Object*>(object);
}

using Path = std::filesystem::path;

} // namespace

bool isSet(Ledger& ledger, const ai::UnicodeString& string) {
    return objectIn<std::u32string, Lent::String>(ledger, string) != nullptr;
}

const std::u32string& readString(Ledger& ledger, const ai::UnicodeString& string) {
    static const std::u32string empty;
    const auto* const text = objectIn<std::u32string, Lent::String>(ledger, string);
    return text == nullptr ? empty : *text;
}

std::string readUtf8(Ledger& ledger, const ai::UnicodeString& string) {
    return utf8FromUtf32(readString(ledger, string));
}

void writeString(Ledger& ledger, ai::UnicodeString& string, std::u32string text) {
    setObject<std::u32string, Lent::String>(ledger, string, std::move(text));
}

void writeUtf8(Ledger& ledger, ai::UnicodeString& string, std::string_view text) {
    writeString(ledger, string, utf32FromUtf8(text));
}

void destroyString(Ledger& ledger, ai::UnicodeString& string) {
    destroyObject<std::u32string, Lent::String>(ledger, string);
}

Path readPath(Ledger& ledger, const ai::FilePath& path) {
    const Path* const object = objectIn<Path, Lent::FilePath>(ledger, path);
    return object == nullptr ? Path{} : *object;
}

void writePath(Ledger& ledger, ai::FilePath& path, Path value) {
    setObject<Path, Lent::FilePath>(ledger, path, std::move(value));
}

void deletePath(Ledger& ledger, ai::FilePath& path) {
    destroyObject<Path, Lent::FilePath>(ledger, path);
}

} // namespace easel
