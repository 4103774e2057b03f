#include "host/suites/AIEntrySuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/core/Text.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/art/Entries.h"

#include <locale>
#include <sstream>

namespace easel {
namespace {

ai::int32 addRef(AIEntryRef entry) {
    HeldEntry& held = entryOf(entry);
    static_cast<void>(held.lend());
    return static_cast<ai::int32>(held.owners());
}

ai::int32 release(AIEntryRef entry) { return entryOf(entry).takeBack(); }

AIEntryType getType(AIEntryRef entry) { return typeOf(entryOf(entry).value); }

// Each of these consumes its entry before anything can fail.

template <typename T> T consumeAs(AIEntryRef entry) { return valueAs<T>(consume(entry)); }

AIErr toBoolean(AIEntryRef entry, AIBoolean* value) {
    const bool content = consumeAs<Boolean>(entry).value;
    required(value) = content ? 1 : 0;
    return kNoErr;
}

AIErr toInteger(AIEntryRef entry, ai::int32* value) {
    const auto content = consumeAs<ai::int32>(entry);
    required(value) = content;
    return kNoErr;
}

AIErr toReal(AIEntryRef entry, AIReal* value) {
    const auto content = consumeAs<AIReal>(entry);
    required(value) = content;
    return kNoErr;
}

AIErr toRealPoint(AIEntryRef entry, AIRealPoint* value) {
    const auto content = consumeAs<AIRealPoint>(entry);
    required(value) = content;
    return kNoErr;
}

AIErr toRealMatrix(AIEntryRef entry, AIRealMatrix* value) {
    const auto content = consumeAs<AIRealMatrix>(entry);
    required(value) = content;
    return kNoErr;
}

AIErr toString(AIEntryRef entry, const char** value) {
    const auto content = consumeAs<SharedText>(entry);
    required(value) = session().messageLoans.characters(content);
    return kNoErr;
}

AIErr toDict(AIEntryRef entry, AIDictionaryRef* value) {
    const auto content = consumeAs<Ref<Dictionary>>(entry);
    required(value) = lend(content);
    return kNoErr;
}

AIErr toArray(AIEntryRef entry, AIArrayRef* value) {
    const auto content = consumeAs<Ref<Array>>(entry);
    required(value) = lend(content);
    return kNoErr;
}

AIErr toBinary(AIEntryRef entry, void* buffer, std::size_t* size) {
    const auto content = consumeAs<Binary>(entry);
    copyBinary(content, buffer, required(size));
    return kNoErr;
}

AIErr toUnicodeString(AIEntryRef entry, ai::UnicodeString& text) {
    writeString(text, utf32FromUtf16(*consumeAs<UnicodeText>(entry)));
    return kNoErr;
}

AIEntryRef fromBoolean(AIBoolean value) { return lendEntry(Boolean{value != 0}); }
AIEntryRef fromInteger(ai::int32 value) { return lendEntry(value); }
AIEntryRef fromReal(AIReal value) { return lendEntry(value); }
AIEntryRef fromRealPoint(const AIRealPoint* value) { return lendEntry(required(value)); }
AIEntryRef fromRealMatrix(const AIRealMatrix* value) { return lendEntry(required(value)); }
AIEntryRef fromString(const char* value) { return lendEntry(textValue(&required(value))); }
AIEntryRef fromDict(AIDictionaryRef value) {
    return lendEntry(Ref<Dictionary>(&dictionaryOf(value)));
}
AIEntryRef fromArray(AIArrayRef value) { return lendEntry(Ref<Array>(&arrayOf(value))); }
AIEntryRef fromBinary(void* bytes, std::size_t size) { return lendEntry(binaryValue(bytes, size)); }
AIEntryRef fromUnicodeString(const ai::UnicodeString& value) {
    return lendEntry(unicodeValue(utf16FromUtf32(readString(value))));
}

// Conversions between texts and simple values.

/// Numbers are read and written as C++ streams do, in no language's own way.
template <typename T> T numberFrom(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    T number{};
    if (!(stream >> number)) throw ai::Error{kNoConversionErr};
    return number;
}

template <typename T> std::string textFrom(T number) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << number;
    return stream.str();
}

std::string textOf(const Value& value) {
    if (const auto* text = std::get_if<SharedText>(&value)) return **text;
    if (const auto* text = std::get_if<UnicodeText>(&value)) return utf8FromUtf16(**text);
    if (const auto* flag = std::get_if<Boolean>(&value)) return flag->value ? "true" : "false";
    if (const auto* integer = std::get_if<ai::int32>(&value)) return textFrom(*integer);
    if (const auto* real = std::get_if<AIReal>(&value)) return textFrom(*real);
    throw ai::Error{kNoConversionErr};
}

template <typename T> T numberOf(const Value& value) {
    if (const auto* integer = std::get_if<ai::int32>(&value)) return static_cast<T>(*integer);
    if (const auto* real = std::get_if<AIReal>(&value)) return numberFrom<T>(textFrom(*real));
    return numberFrom<T>(textOf(value));
}

AIErr asBoolean(AIEntryRef entry, AIBoolean* result) {
    const std::string text = textOf(consume(entry));
    const bool isTrue = text == "1" || text == "true";
    if (!isTrue && text != "0" && text != "false") return kNoConversionErr;
    required(result) = isTrue ? 1 : 0;
    return kNoErr;
}

AIErr asInteger(AIEntryRef entry, ai::int32* result) {
    const auto number = numberOf<ai::int32>(consume(entry));
    required(result) = number;
    return kNoErr;
}

AIErr asReal(AIEntryRef entry, AIReal* result) {
    const auto number = numberOf<AIReal>(consume(entry));
    required(result) = number;
    return kNoErr;
}

AIErr asString(AIEntryRef entry, const char** result) {
    auto text = std::make_shared<const std::string>(textOf(consume(entry)));
    required(result) = session().messageLoans.characters(std::move(text));
    return kNoErr;
}

AIErr asUnicodeString(AIEntryRef entry, ai::UnicodeString& result) {
    writeUtf8(result, textOf(consume(entry)));
    return kNoErr;
}

AIBoolean equiv(AIEntryRef first, AIEntryRef second) {
    return equivalent(entryOf(first).value, entryOf(second).value) ? 1 : 0;
}

} // namespace

void installEntrySuite(SuiteServer& server) {
    using S = AIEntrySuite;
    auto table = server.table<S>(kAIEntrySuite, kAIEntrySuiteVersion);
    expose<&S::AddRef, addRef>(table);
    expose<&S::Release, release>(table);
    expose<&S::GetType, getType>(table);
    expose<&S::ToBoolean, toBoolean, FailsConsuming>(table);
    expose<&S::FromBoolean, fromBoolean>(table);
    expose<&S::ToInteger, toInteger, FailsConsuming>(table);
    expose<&S::FromInteger, fromInteger>(table);
    expose<&S::ToReal, toReal, FailsConsuming>(table);
    expose<&S::FromReal, fromReal>(table);
    expose<&S::ToRealPoint, toRealPoint, FailsConsuming>(table);
    expose<&S::FromRealPoint, fromRealPoint>(table);
    expose<&S::ToRealMatrix, toRealMatrix, FailsConsuming>(table);
    expose<&S::FromRealMatrix, fromRealMatrix>(table);
    expose<&S::ToString, toString, FailsConsuming>(table);
    expose<&S::FromString, fromString>(table);
    expose<&S::ToDict, toDict, FailsConsuming>(table);
    expose<&S::FromDict, fromDict>(table);
    expose<&S::ToArray, toArray, FailsConsuming>(table);
    expose<&S::FromArray, fromArray>(table);
    expose<&S::ToBinary, toBinary, FailsConsuming>(table);
    expose<&S::FromBinary, fromBinary>(table);
    expose<&S::AsBoolean, asBoolean, FailsConsuming>(table);
    expose<&S::AsInteger, asInteger, FailsConsuming>(table);
    expose<&S::AsReal, asReal, FailsConsuming>(table);
    expose<&S::AsString, asString, FailsConsuming>(table);
    expose<&S::ToUnicodeString, toUnicodeString, FailsConsuming>(table);
    expose<&S::FromUnicodeString, fromUnicodeString>(table);
    expose<&S::AsUnicodeString, asUnicodeString, FailsConsuming>(table);
    expose<&S::Equiv, equiv>(table);
}

} // namespace easel
