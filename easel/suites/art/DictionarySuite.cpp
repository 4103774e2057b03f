#include "host/suites/AIDictionarySuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/core/Text.h"
#include "easel/document/Art.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/art/Entries.h"

#include <cstring>

namespace easel {
namespace {

Key keyOf(AIDictKey handle) {
    const void* key = session().handles.find(HandleKind::Key, handle);
    if (key == nullptr) throw ai::Error{kBadParameterErr};
    return static_cast<Key>(key);
}

/// The dictionary of a call. Texts that were lent until the next such call end here.
Dictionary& called(ConstAIDictionaryRef dictionary) {
    session().messageLoans.dictionaryCalled();
    return dictionaryOf(dictionary);
}

const Value& valueAt(ConstAIDictionaryRef dictionary, AIDictKey key) {
    const Value* value = called(dictionary).find(keyOf(key));
    if (value == nullptr) throw ai::Error{kNoSuchKey};
    return *value;
}

template <typename T> const T& typedAt(ConstAIDictionaryRef dictionary, AIDictKey key) {
    return valueAs<T>(valueAt(dictionary, key));
}

AIErr put(AIDictionaryRef dictionary, AIDictKey key, Value value) {
    called(dictionary).set(keyOf(key), std::move(value));
    return kNoErr;
}

AIErr createDictionary(AIDictionaryRef* dictionary) {
    required(dictionary) = nullptr;
    *dictionary = lend(Ref<Dictionary>(new Dictionary));
    return kNoErr;
}

ai::int32 addRef(AIDictionaryRef dictionary) {
    Dictionary& held = dictionaryOf(dictionary);
    static_cast<void>(held.lend());
    return static_cast<ai::int32>(held.owners());
}

ai::int32 release(AIDictionaryRef dictionary) { return dictionaryOf(dictionary).takeBack(); }

AIErr clone(ConstAIDictionaryRef source, AIDictionaryRef* copy) {
    required(copy) = nullptr;
    const Ref<Dictionary> made(new Dictionary);
    made->copyFrom(called(source));
    *copy = lend(made);
    return kNoErr;
}

AIErr copy(AIDictionaryRef target, ConstAIDictionaryRef source) {
    called(target).copyFrom(dictionaryOf(source));
    return kNoErr;
}

ai::uint32 size(ConstAIDictionaryRef dictionary) {
    return static_cast<ai::uint32>(called(dictionary).items().size());
}

AIDictKey key(const char* text) {
    const Key interned = internKey(&required(text));
    auto& handle = session().keyHandles[interned];
    if (handle == nullptr)
        handle = session().handles.add(HandleKind::Key, const_cast<std::string*>(interned));
    return static_cast<AIDictKey>(handle);
}

const char* getKeyString(AIDictKey handle) { return keyOf(handle)->c_str(); }

AIBoolean isKnown(ConstAIDictionaryRef dictionary, AIDictKey key) {
    return called(dictionary).find(keyOf(key)) != nullptr ? 1 : 0;
}

AIErr deleteEntry(AIDictionaryRef dictionary, AIDictKey key) {
    return called(dictionary).erase(keyOf(key)) ? kNoErr : kNoSuchKey;
}

AIErr getEntryType(ConstAIDictionaryRef dictionary, AIDictKey key, AIEntryType* type) {
    required(type) = typeOf(valueAt(dictionary, key));
    return kNoErr;
}

AIErr copyEntry(ConstAIDictionaryRef source, AIDictionaryRef target, AIDictKey sourceKey,
                AIDictKey targetKey) {
    return put(target, targetKey, deepCopy(valueAt(source, sourceKey)));
}

AIErr moveEntry(AIDictionaryRef source, AIDictionaryRef target, AIDictKey sourceKey,
                AIDictKey targetKey) {
    Value moved = valueAt(source, sourceKey);
    if (source == target && sourceKey == targetKey) return kNoErr;
    dictionaryOf(target).set(keyOf(targetKey), std::move(moved));
    dictionaryOf(source).erase(keyOf(sourceKey));
    return kNoErr;
}

AIErr swapEntries(AIDictionaryRef first, AIDictionaryRef second, AIDictKey firstKey,
                  AIDictKey secondKey) {
    Value one = valueAt(first, firstKey);
    Value other = valueAt(second, secondKey);
    dictionaryOf(first).set(keyOf(firstKey), std::move(other));
    dictionaryOf(second).set(keyOf(secondKey), std::move(one));
    return kNoErr;
}

AIEntryRef get(ConstAIDictionaryRef dictionary, AIDictKey key) {
    const Value* value = called(dictionary).find(keyOf(key));
    return value != nullptr ? lendEntry(*value) : nullptr;
}

AIErr set(AIDictionaryRef dictionary, AIDictKey key, AIEntryRef entry) {
    return put(dictionary, key, consume(entry)); // consumed, whatever happens next
}

AIErr getBoolean(ConstAIDictionaryRef dictionary, AIDictKey key, AIBoolean* value) {
    required(value) = typedAt<Boolean>(dictionary, key).value ? 1 : 0;
    return kNoErr;
}

AIErr setBoolean(AIDictionaryRef dictionary, AIDictKey key, AIBoolean value) {
    return put(dictionary, key, Boolean{value != 0});
}

AIErr getInteger(ConstAIDictionaryRef dictionary, AIDictKey key, ai::int32* value) {
    required(value) = typedAt<ai::int32>(dictionary, key);
    return kNoErr;
}

AIErr setInteger(AIDictionaryRef dictionary, AIDictKey key, ai::int32 value) {
    return put(dictionary, key, value);
}

AIErr getPointer(ConstAIDictionaryRef dictionary, AIDictKey key, ai::intptr* value) {
    required(value) = typedAt<Pointer>(dictionary, key).value;
    return kNoErr;
}

AIErr setPointer(AIDictionaryRef dictionary, AIDictKey key, ai::intptr value) {
    return put(dictionary, key, Pointer{value});
}

AIErr getReal(ConstAIDictionaryRef dictionary, AIDictKey key, AIReal* value) {
    required(value) = typedAt<AIReal>(dictionary, key);
    return kNoErr;
}

AIErr setReal(AIDictionaryRef dictionary, AIDictKey key, AIReal value) {
    return put(dictionary, key, value);
}

AIErr getString(ConstAIDictionaryRef dictionary, AIDictKey key, const char** value) {
    const SharedText& text = typedAt<SharedText>(dictionary, key);
    required(value) = session().messageLoans.characters(text);
    return kNoErr;
}

AIErr setString(AIDictionaryRef dictionary, AIDictKey key, const char* value) {
    return put(dictionary, key, textValue(&required(value)));
}

AIErr getBinary(ConstAIDictionaryRef dictionary, AIDictKey key, void* buffer, std::size_t* size) {
    copyBinary(typedAt<Binary>(dictionary, key), buffer, required(size));
    return kNoErr;
}

AIErr setBinary(AIDictionaryRef dictionary, AIDictKey key, void* bytes, std::size_t size) {
    return put(dictionary, key, binaryValue(bytes, size));
}

AIErr getDictEntry(ConstAIDictionaryRef dictionary, AIDictKey key, AIDictionaryRef* child) {
    required(child) = nullptr;
    *child = lend(typedAt<Ref<Dictionary>>(dictionary, key));
    return kNoErr;
}

AIErr setDictEntry(AIDictionaryRef dictionary, AIDictKey key, AIDictionaryRef child) {
    return put(dictionary, key, Ref<Dictionary>(&dictionaryOf(child)));
}

AIErr getArrayEntry(ConstAIDictionaryRef dictionary, AIDictKey key, AIArrayRef* array) {
    required(array) = nullptr;
    *array = lend(typedAt<Ref<Array>>(dictionary, key));
    return kNoErr;
}

AIErr setArrayEntry(AIDictionaryRef dictionary, AIDictKey key, AIArrayRef array) {
    return put(dictionary, key, Ref<Array>(&arrayOf(array)));
}

AIErr getUnicodeString(ConstAIDictionaryRef dictionary, AIDictKey key, ai::UnicodeString& text) {
    writeString(text, utf32FromUtf16(*typedAt<UnicodeText>(dictionary, key)));
    return kNoErr;
}

AIErr setUnicodeString(AIDictionaryRef dictionary, AIDictKey key, const ai::UnicodeString& text) {
    return put(dictionary, key, unicodeValue(utf16FromUtf32(readString(text))));
}

AIErr touchArt(ConstAIDictionaryRef dictionary) {
    Art* art = called(dictionary).owner();
    if (art != nullptr && art->isAlive()) art->touch();
    return kNoErr;
}

/// A host that has no functions for pointers has everything after them two slots earlier.
void leaveOutPointerSlots(AIDictionarySuite& suite) {
    constexpr std::size_t kFirst = offsetof(AIDictionarySuite, GetPointerEntry);
    constexpr std::size_t kNext = offsetof(AIDictionarySuite, GetRealEntry);
    auto* bytes = reinterpret_cast<char*>(&suite);
    std::memmove(bytes + kFirst, bytes + kNext, sizeof suite - kNext);
}

} // namespace

void installDictionarySuite(SuiteServer& server) {
    using S = AIDictionarySuite;
    auto table = server.table<S>(kAIDictionarySuite, kAIDictionarySuiteVersion);
    expose<&S::CreateDictionary, createDictionary>(table);
    expose<&S::AddRef, addRef>(table);
    expose<&S::Release, release>(table);
    expose<&S::Clone, clone>(table);
    expose<&S::Copy, copy>(table);
    expose<&S::Size, size>(table);
    expose<&S::Key, key>(table);
    expose<&S::GetKeyString, getKeyString>(table);
    expose<&S::IsKnown, isKnown>(table);
    expose<&S::DeleteEntry, deleteEntry>(table);
    expose<&S::GetEntryType, getEntryType>(table);
    expose<&S::CopyEntry, copyEntry>(table);
    expose<&S::MoveEntry, moveEntry>(table);
    expose<&S::SwapEntries, swapEntries>(table);
    expose<&S::Get, get>(table);
    expose<&S::Set, set, FailsConsuming>(table);
    expose<&S::GetBooleanEntry, getBoolean>(table);
    expose<&S::SetBooleanEntry, setBoolean>(table);
    expose<&S::GetIntegerEntry, getInteger>(table);
    expose<&S::SetIntegerEntry, setInteger>(table);
    expose<&S::GetPointerEntry, getPointer>(table);
    expose<&S::SetPointerEntry, setPointer>(table);
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
    expose<&S::TouchArt, touchArt>(table);
    if (!switches().dictionaryHasPointerSlots) leaveOutPointerSlots(table.functions());
}

} // namespace easel
