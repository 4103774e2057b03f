#pragma once

#include "easel/core/Ledger.h"
#include "host/FilePath.h"
#include "host/UnicodeString.h"

#include <filesystem>
#include <string>
#include <string_view>

/// Objects of Easel's behind those of the plug-in that consist of one pointer: strings and paths. A
/// null pointer is an object never set. The ledger has what is behind one on loan.
namespace easel {

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

/// The path behind `path`, in the notation of this system; empty for an object never set. Throws
/// 'PARM' when it is not one of ours or was deleted.
[[nodiscard]] std::filesystem::path readPath(Ledger& ledger, const ai::FilePath& path);
/// Makes the object when there is none; the ledger then has it on loan.
void writePath(Ledger& ledger, ai::FilePath& path, std::filesystem::path value);
void deletePath(Ledger& ledger, ai::FilePath& path);

} // namespace easel
