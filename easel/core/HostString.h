#pragma once

#include "easel/core/Ledger.h"
#include "host/UnicodeString.h"

#include <string>
#include <string_view>

namespace easel {

// The host's side of `ai::UnicodeString`.

/// The characters of `string`; none when it was never set. Throws 'PARM' when it is not one of ours
/// or was destroyed.
[[nodiscard]] const std::u32string& readString(Ledger& ledger, const ai::UnicodeString& string);
[[nodiscard]] std::string readUtf8(Ledger& ledger, const ai::UnicodeString& string);

/// Gives `string` the characters of `text`, making its object, which the ledger then has on loan,
/// when it has none.
void writeString(Ledger& ledger, ai::UnicodeString& string, std::u32string text);
void writeUtf8(Ledger& ledger, ai::UnicodeString& string, std::string_view text);

[[nodiscard]] bool isSet(Ledger& ledger, const ai::UnicodeString& string);
/// Ends the life of the string's object, if it has one.
void destroyString(Ledger& ledger, ai::UnicodeString& string);

} // namespace easel
