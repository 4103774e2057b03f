#include "host/suites/AIDictionarySuite.h"

#include "easel/core/Expose.h"
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

void put(AIDictionaryRef dictionary, AIDictKey key, Value value) {
    called(dictionary).set(keyOf(key), std::move(value));
}

AIDictionaryRef createDictionary() { return lend(Ref<Dictionary>(new Dictionary)); }

ai::int32 release(AIDictionaryRef dictionary) {
    return dictionaryOf(dictionary).takeBack(session());
}

void copy(AIDictionaryRef target, ConstAIDictionaryRef source) {
    called(target).copyFrom(dictionaryOf(source));
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

bool isKnown(ConstAIDictionaryRef dictionary, AIDictKey key) {
    return called(dictionary).find(keyOf(key)) != nullptr;
}

void deleteEntry(AIDictionaryRef dictionary, AIDictKey key) {
    if (!called(dictionary).erase(keyOf(key))) throw ai::Error{kNoSuchKey};
}

AIEntryRef get(ConstAIDictionaryRef dictionary, AIDictKey key) {
    const Value* value = called(dictionary).find(keyOf(key));
    return value != nullptr ? lendEntry(*value) : nullptr;
}

void set(AIDictionaryRef dictionary, AIDictKey key, AIEntryRef entry) {
    put(dictionary, key, consume(entry)); // consumed, whatever happens next
}

bool getBoolean(ConstAIDictionaryRef dictionary, AIDictKey key) {
    return typedAt<Boolean>(dictionary, key).value;
}

void setBoolean(AIDictionaryRef dictionary, AIDictKey key, AIBoolean value) {
    put(dictionary, key, Boolean{value != 0});
}

ai::int32 getInteger(ConstAIDictionaryRef dictionary, AIDictKey key) {
    return typedAt<ai::int32>(dictionary, key);
}

void setInteger(AIDictionaryRef dictionary, AIDictKey key, ai::int32 value) {
    put(dictionary, key, value);
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
    auto table = server.table<S>();
    table.clear(); // the switch may have moved what is there
    expose<&S::CreateDictionary, createDictionary>(table);
    expose<&S::Release, release>(table);
    expose<&S::Copy, copy>(table);
    expose<&S::Size, size>(table);
    expose<&S::Key, key>(table);
    expose<&S::IsKnown, isKnown>(table);
    expose<&S::DeleteEntry, deleteEntry>(table);
    expose<&S::Get, get>(table);
    expose<&S::Set, set, FailsConsuming>(table);
    expose<&S::GetBooleanEntry, getBoolean>(table);
    expose<&S::SetBooleanEntry, setBoolean>(table);
    expose<&S::GetIntegerEntry, getInteger>(table);
    expose<&S::SetIntegerEntry, setInteger>(table);
    if (!session().switches.dictionaryHasPointerSlots) leaveOutPointerSlots(table.functions());
}

} // namespace easel
