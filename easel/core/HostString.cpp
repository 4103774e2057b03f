#include "easel/core/HostString.h"

#include "easel/core/HostObject.h"
#include "easel/core/Text.h"

namespace easel {

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

} // namespace easel
