#include "host/suites/AIArraySuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/core/Text.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/art/Entries.h"

namespace easel {
namespace {

template <typename T> const T& typedAt(AIArrayRef array, ai::int32 index) {
    return valueAs<T>(arrayOf(array).at(index));
}

AIErr put(AIArrayRef array, ai::int32 index, Value value) {
    arrayOf(array).set(index, std::move(value));
    return kNoErr;
}

AIErr createArray(AIArrayRef* array) {
    required(array) = nullptr;
    *array = lend(Ref<Array>(new Array));
    return kNoErr;
}

ai::int32 addRef(AIArrayRef array) {
    Array& held = arrayOf(array);
    static_cast<void>(held.lend());
    return static_cast<ai::int32>(held.owners());
}

ai::int32 release(AIArrayRef array) { return arrayOf(array).takeBack(); }

AIErr clone(AIArrayRef source, AIArrayRef* copy) {
    required(copy) = nullptr;
    const Ref<Array> made(new Array);
    made->copyFrom(arrayOf(source));
    *copy = lend(made);
    return kNoErr;
}

AIErr copy(AIArrayRef target, AIArrayRef source) {
    arrayOf(target).copyFrom(arrayOf(source));
    return kNoErr;
}

ai::int32 size(AIArrayRef array) { return static_cast<ai::int32>(arrayOf(array).values().size()); }

AIErr deleteEntry(AIArrayRef array, ai::int32 index) {
    arrayOf(array).erase(index);
    return kNoErr;
}

AIErr insertEntry(AIArrayRef array, ai::int32 index) {
    arrayOf(array).insert(index, Value{});
    return kNoErr;
}

AIErr getEntryType(AIArrayRef array, ai::int32 index, AIEntryType* type) {
    required(type) = typeOf(arrayOf(array).at(index));
    return kNoErr;
}

AIErr copyEntry(AIArrayRef source, AIArrayRef target, ai::int32 from, ai::int32 to) {
    return put(target, to, deepCopy(arrayOf(source).at(from)));
}

AIErr swapEntries(AIArrayRef first, AIArrayRef second, ai::int32 firstIndex,
                  ai::int32 secondIndex) {
    Value one = arrayOf(first).at(firstIndex);
    Value other = arrayOf(second).at(secondIndex);
    put(first, firstIndex, std::move(other));
    return put(second, secondIndex, std::move(one));
}

AIEntryRef get(AIArrayRef array, ai::int32 index) {
    const auto values = arrayOf(array).values();
    if (index < 0 || index >= std::ssize(values)) return nullptr;
    return lendEntry(values[static_cast<std::size_t>(index)]);
}

AIErr set(AIArrayRef array, ai::int32 index, AIEntryRef entry) {
    return put(array, index, consume(entry));
}

AIErr appendEntry(AIArrayRef array, AIEntryRef entry) {
    Value value = consume(entry);
    Array& target = arrayOf(array);
    target.insert(static_cast<ai::int32>(target.values().size()), std::move(value));
    return kNoErr;
}

AIErr reserve(AIArrayRef array, ai::int32 count) {
    static_cast<void>(arrayOf(array));
    return count < 0 ? kBadParameterErr : kNoErr;
}

AIErr getBoolean(AIArrayRef array, ai::int32 index, AIBoolean* value) {
    required(value) = typedAt<Boolean>(array, index).value ? 1 : 0;
    return kNoErr;
}

AIErr setBoolean(AIArrayRef array, ai::int32 index, AIBoolean value) {
    return put(array, index, Boolean{value != 0});
}

AIErr getInteger(AIArrayRef array, ai::int32 index, ai::int32* value) {
    required(value) = typedAt<ai::int32>(array, index);
    return kNoErr;
}

AIErr setInteger(AIArrayRef array, ai::int32 index, ai::int32 value) {
    return put(array, index, value);
}

AIErr getReal(AIArrayRef array, ai::int32 index, AIReal* value) {
    required(value) = typedAt<AIReal>(array, index);
    return kNoErr;
}

AIErr setReal(AIArrayRef array, ai::int32 index, AIReal value) { return put(array, index, value); }

AIErr getString(AIArrayRef array, ai::int32 index, const char** value) {
    const SharedText& text = typedAt<SharedText>(array, index);
    required(value) = session().messageLoans.characters(text);
    return kNoErr;
}

AIErr setString(AIArrayRef array, ai::int32 index, const char* value) {
    return put(array, index, textValue(&required(value)));
}

AIErr getBinary(AIArrayRef array, ai::int32 index, void* buffer, ai::int32* size) {
    if (required(size) < 0) return kBadParameterErr;
    auto room = static_cast<std::size_t>(*size);
    copyBinary(typedAt<Binary>(array, index), buffer, room);
    *size = static_cast<ai::int32>(room);
    return kNoErr;
}

AIErr setBinary(AIArrayRef array, ai::int32 index, void* bytes, ai::int32 size) {
    if (size < 0) return kBadParameterErr;
    return put(array, index, binaryValue(bytes, static_cast<std::size_t>(size)));
}

AIErr getDictEntry(AIArrayRef array, ai::int32 index, AIDictionaryRef* child) {
    required(child) = nullptr;
    *child = lend(typedAt<Ref<Dictionary>>(array, index));
    return kNoErr;
}

AIErr setDictEntry(AIArrayRef array, ai::int32 index, AIDictionaryRef child) {
    return put(array, index, Ref<Dictionary>(&dictionaryOf(child)));
}

AIErr getArrayEntry(AIArrayRef array, ai::int32 index, AIArrayRef* child) {
    required(child) = nullptr;
    *child = lend(typedAt<Ref<Array>>(array, index));
    return kNoErr;
}

AIErr setArrayEntry(AIArrayRef array, ai::int32 index, AIArrayRef child) {
    return put(array, index, Ref<Array>(&arrayOf(child)));
}

AIErr getUnicodeString(AIArrayRef array, ai::int32 index, ai::UnicodeString& text) {
    writeString(text, utf32FromUtf16(*typedAt<UnicodeText>(array, index)));
    return kNoErr;
}

AIErr setUnicodeString(AIArrayRef array, ai::int32 index, const ai::UnicodeString& text) {
    return put(array, index, unicodeValue(utf16FromUtf32(readString(text))));
}

} // namespace

void installArraySuite(SuiteServer& server) {
    using S = AIArraySuite;
    auto table = server.table<S>(kAIArraySuite, kAIArraySuiteVersion);
    expose<&S::CreateArray, createArray>(table);
    expose<&S::AddRef, addRef>(table);
    expose<&S::Release, release>(table);
    expose<&S::Clone, clone>(table);
    expose<&S::Copy, copy>(table);
    expose<&S::Size, size>(table);
    expose<&S::DeleteEntry, deleteEntry>(table);
    expose<&S::InsertEntry, insertEntry>(table);
    expose<&S::GetEntryType, getEntryType>(table);
    expose<&S::CopyEntry, copyEntry>(table);
    expose<&S::SwapEntries, swapEntries>(table);
    expose<&S::Get, get>(table);
    expose<&S::Set, set, FailsConsuming>(table);
    expose<&S::GetBooleanEntry, getBoolean>(table);
    expose<&S::SetBooleanEntry, setBoolean>(table);
    expose<&S::GetIntegerEntry, getInteger>(table);
    expose<&S::SetIntegerEntry, setInteger>(table);
    expose<&S::GetRealEntry, getReal>(table);
    expose<&S::SetRealEntry, setReal>(table);
    expose<&S::GetStringEntry, getString>(table);
    expose<&S::SetStringEntry, setString>(table);
    expose<&S::GetBinaryEntry, getBinary>(table);
    expose<&S::SetBinaryEntry, setBinary>(table);
    expose<&S::GetDictEntry, getDictEntry>(table);
    expose<&S::SetDictEntry, setDictEntry>(table);
    expose<&S::GetArrayEntry, getArrayEntry>(table);
    expose<&S::SetArrayEntry, setArrayEntry>(table);
    expose<&S::GetUnicodeStringEntry, getUnicodeString>(table);
    expose<&S::SetUnicodeStringEntry, setUnicodeString>(table);
    expose<&S::AppendEntry, appendEntry, FailsConsuming>(table);
    expose<&S::Reserve, reserve>(table);
}

} // namespace easel
