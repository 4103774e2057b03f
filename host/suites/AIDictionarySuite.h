#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIDictionarySuite[] = "AI Dictionary Suite";
inline constexpr ai::int32 kAIDictionarySuiteVersion = 7;

/// Counted maps from interned keys to typed entries. From slot 29 on the order differs between
/// generations, so Facetta uses slots 0 to 28 and the entry suite only.
struct AIDictionarySuite {
    /// To be released by the caller.
    AIErr (*CreateDictionary)(AIDictionaryRef* dictionary);
    ai::int32 (*AddRef)(AIDictionaryRef);
    /// Answers the new count. Null is not promised to be accepted.
    ai::int32 (*Release)(AIDictionaryRef dictionary);
    AIErr (*Clone)(ConstAIDictionaryRef, AIDictionaryRef*);
    /// Deep; replaces what is there. The destination comes first.
    AIErr (*Copy)(AIDictionaryRef destination, ConstAIDictionaryRef source);
    ai::uint32 (*Size)(ConstAIDictionaryRef dictionary);
    /// To be released by the caller.
    AIErr (*Begin)(ConstAIDictionaryRef dictionary, AIDictionaryIterator* iterator);
    /// The same for the same text, as long as the host runs.
    AIDictKey (*Key)(const char* text);
    const char* (*GetKeyString)(AIDictKey);
    AIBoolean (*IsKnown)(ConstAIDictionaryRef dictionary, AIDictKey key);
    /// Fails when there is none.
    AIErr (*DeleteEntry)(AIDictionaryRef dictionary, AIDictKey key);
    AIErr (*GetEntryType)(ConstAIDictionaryRef, AIDictKey, AIEntryType*);
    AIErr (*CopyEntry)(ConstAIDictionaryRef, AIDictionaryRef, AIDictKey, AIDictKey);
    AIErr (*MoveEntry)(AIDictionaryRef, AIDictionaryRef, AIDictKey, AIDictKey);
    AIErr (*SwapEntries)(AIDictionaryRef, AIDictionaryRef, AIDictKey, AIDictKey);
    ReservedSlot GetArtEntry, NewArtEntry, MoveArtToEntry, MoveEntryToArt, CopyArtToEntry,
        CopyEntryToArt, SetEntryToLayer, SetLayerToEntry;
    /// To be released, or consumed by a call; null when there is none.
    AIEntryRef (*Get)(ConstAIDictionaryRef dictionary, AIDictKey key);
    /// Consumes `entry`.
    AIErr (*Set)(AIDictionaryRef dictionary, AIDictKey key, AIEntryRef entry);
    /// Fails, and leaves `value` alone, when there is none or it is of another type.
    AIErr (*GetBooleanEntry)(ConstAIDictionaryRef dictionary, AIDictKey key, AIBoolean* value);
    AIErr (*SetBooleanEntry)(AIDictionaryRef dictionary, AIDictKey key, AIBoolean value);
    /// As `GetBooleanEntry`.
    AIErr (*GetIntegerEntry)(ConstAIDictionaryRef dictionary, AIDictKey key, ai::int32* value);
    AIErr (*SetIntegerEntry)(AIDictionaryRef dictionary, AIDictKey key, ai::int32 value);
    AIErr (*GetPointerEntry)(ConstAIDictionaryRef, AIDictKey, ai::intptr*);
    AIErr (*SetPointerEntry)(AIDictionaryRef, AIDictKey, ai::intptr);
    AIErr (*GetRealEntry)(ConstAIDictionaryRef, AIDictKey, AIReal*);
    AIErr (*SetRealEntry)(AIDictionaryRef, AIDictKey, AIReal);
    AIErr (*GetStringEntry)(ConstAIDictionaryRef, AIDictKey, const char**);
    AIErr (*SetStringEntry)(AIDictionaryRef, AIDictKey, const char*);
    AIErr (*GetBinaryEntry)(ConstAIDictionaryRef, AIDictKey, void*, std::size_t*);
    AIErr (*SetBinaryEntry)(AIDictionaryRef, AIDictKey, void*, std::size_t);
    AIErr (*GetDictEntry)(ConstAIDictionaryRef, AIDictKey, AIDictionaryRef*);
    AIErr (*SetDictEntry)(AIDictionaryRef, AIDictKey, AIDictionaryRef);
    AIErr (*GetArrayEntry)(ConstAIDictionaryRef, AIDictKey, AIArrayRef*);
    AIErr (*SetArrayEntry)(AIDictionaryRef, AIDictKey, AIArrayRef);
    AIErr (*GetUnicodeStringEntry)(ConstAIDictionaryRef, AIDictKey, ai::UnicodeString&);
    AIErr (*SetUnicodeStringEntry)(AIDictionaryRef, AIDictKey, const ai::UnicodeString&);
    AIErr (*TouchArt)(ConstAIDictionaryRef);
};

template <>
struct ai::SuiteId<AIDictionarySuite>
    : ai::SuiteIdentity<kAIDictionarySuite, kAIDictionarySuiteVersion> {};
