#include "easel/core/HostString.h"

#include "easel/core/Text.h"

#include <memory>
#include <utility>

namespace easel {
namespace {

/// The one member of the client's object. It is set to null only by `Destroy`, so that whatever
/// else it holds must be on loan.
void*& pointerIn(ai::UnicodeString& string) { return reinterpret_cast<void*&>(string); }
void* pointerIn(const ai::UnicodeString& string) { return reinterpret_cast<void* const&>(string); }

} // namespace

StringObject* stringObject(Ledger& ledger, const ai::UnicodeString& string) {
    void* const object = pointerIn(string);
    if (object != nullptr) ledger.require(Lent::String, object);
    return static_cast<StringObject*>(object);
}

const std::u32string& readString(Ledger& ledger, const ai::UnicodeString& string) {
    static const std::u32string empty;
    const StringObject* const object = stringObject(ledger, string);
    return object == nullptr ? empty : object->text;
}

std::string readUtf8(Ledger& ledger, const ai::UnicodeString& string) {
    return utf8FromUtf32(readString(ledger, string));
}

void writeString(Ledger& ledger, ai::UnicodeString& string, std::u32string text) {
    if (StringObject* const object = stringObject(ledger, string)) {
        object->text = std::move(text);
        return;
    }
    auto object = std::make_unique<StringObject>(StringObject{std::move(text)});
    ledger.lend(Lent::String, object.get());
    pointerIn(string) = object.release();
}

void writeUtf8(Ledger& ledger, ai::UnicodeString& string, std::string_view text) {
    writeString(ledger, string, utf32FromUtf8(text));
}

void destroyString(Ledger& ledger, ai::UnicodeString& string) {
    void* const object = std::exchange(pointerIn(string), nullptr);
    if (object == nullptr) return;
    ledger.takeBack(Lent::String, object);
    delete static_cast<StringObject*>(object);
}

} // namespace easel
