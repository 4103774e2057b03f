#pragma once

#include "easel/core/Ledger.h"
#include "host/UnicodeString.h"

#include <string>
#include <string_view>

namespace easel {

/// The host's side of `ai::UnicodeString`: what the object's one pointer leads to. A null pointer
/// is a string that was never set: empty.
struct StringObject {
    std::u32string text;
};

/// The characters of `string`. Throws 'PARM' when it is not one of ours or was destroyed.
[[nodiscard]] const std::u32string& readString(Ledger& ledger, const ai::UnicodeString& string);
[[nodiscard]] std::string readUtf8(Ledger& ledger, const ai::UnicodeString& string);

/// Gives `string` the characters of `text`, making its object, which the ledger then has on loan,
/// when it has none.
void writeString(Ledger& ledger, ai::UnicodeString& string, std::u32string text);
void writeUtf8(Ledger& ledger, ai::UnicodeString& string, std::string_view text);

/// The object to be changed in place; null for a string that was never set.
[[nodiscard]] StringObject* stringObject(Ledger& ledger, const ai::UnicodeString& string);
/// Ends the life of the string's object, if it has one.
void destroyString(Ledger& ledger, ai::UnicodeString& string);

} // namespace easel
