#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
#include "easel/core/Text.h"
#include "easel/document/Session.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIUnicodeStringSuite.h"

#include <string>

/// Positions and counts are characters, never UTF-16 units; `npos` as a count means the rest.

namespace easel {
namespace {

using String = ai::UnicodeString;

constexpr AICharacterEncoding kPlatform = 0; ///< Easel's platform speaks UTF-8.
constexpr AICharacterEncoding kUtf8 = 1;
constexpr AICharacterEncoding kUtf16 = 2;
constexpr ai::int64 kUntilZero = -1;
/// Longer than any text a user or plug-in has business with.
constexpr std::size_t kMostCharacters = std::size_t{1} << 28;

std::size_t checkedLength(ai::int64 length) {
    if (length < 0) throw ai::Error{kBadParameterErr};
    if (static_cast<std::size_t>(length) > kMostCharacters) throw ai::Error{kStringTooLongErr};
    return static_cast<std::size_t>(length);
}

void initializeUtf16(String& string, const ASUnicode* units, ai::int64 count) {
    const auto* const first = reinterpret_cast<const char16_t*>(units);
    if (count != 0) static_cast<void>(required(units));
    const std::size_t length =
        count == kUntilZero ? std::char_traits<char16_t>::length(first) : checkedLength(count);
    writeString(session().ledger, string, utf32FromUtf16({first, length}));
}

void initialize(String& string, const char* bytes, ai::int64 length, AICharacterEncoding encoding) {
    if (encoding == kUtf16)
        return initializeUtf16(string, reinterpret_cast<const ASUnicode*>(bytes),
                               length / static_cast<ai::int64>(sizeof(ASUnicode)));
    if (encoding != kPlatform && encoding != kUtf8) throw ai::Error{kBadParameterErr};
    if (length != 0) static_cast<void>(required(bytes));
    const std::size_t size =
        length == kUntilZero ? std::char_traits<char>::length(bytes) : checkedLength(length);
    writeString(session().ledger, string, utf32FromUtf8({bytes, size}));
}

void destroy(String& string) { destroyString(session().ledger, string); }

/// A copy shares nothing with its original. One of an unset string is unset or empty: the same.
void assign(String& string, const String& other) {
    if (isSet(session().ledger, other) || isSet(session().ledger, string))
        writeString(session().ledger, string, readString(session().ledger, other));
}

char32_t getChar(const String& string, std::size_t position) {
    const std::u32string& text = readString(session().ledger, string);
    if (position >= text.size()) throw ai::Error{kStringIndexErr};
    return text[position];
}

} // namespace

void installUnicodeStringSuite(SuiteServer& server) {
    using Suite = AIUnicodeStringSuite;
    expose<&Suite::Initialize, initialize>(server);
    expose<&Suite::InitializeUTF16, initializeUtf16>(server);
    exposeEnding<&Suite::Destroy, destroy>(server);
    expose<&Suite::Assign, assign>(server);
    expose<&Suite::GetChar, getChar>(server);
}

} // namespace easel
