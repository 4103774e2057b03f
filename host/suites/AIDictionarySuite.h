#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIDictionarySuite[] = "AI Dictionary Suite";
inline constexpr ai::int32 kAIDictionarySuiteVersion = 7;

/// Counted maps from interned keys to typed entries. From slot 29 on the order differs between
/// generations, so Facetta uses slots 0 to 28 and the entry suite only.
struct AIDictionarySuite {
    AIErr (*CreateDictionary)(AIDictionaryRef*);
    ai::int32 (*AddRef)(AIDictionaryRef);
    ai::int32 (*Release)(AIDictionaryRef);
    AIErr (*Clone)(ConstAIDictionaryRef, AIDictionaryRef*);
    AIErr (*Copy)(AIDictionaryRef, ConstAIDictionaryRef);
    ai::uint32 (*Size)(ConstAIDictionaryRef);
    AIErr (*Begin)(ConstAIDictionaryRef, AIDictionaryIterator*);
    AIDictKey (*Key)(const char*);
    const char* (*GetKeyString)(AIDictKey);
    AIBoolean (*IsKnown)(ConstAIDictionaryRef, AIDictKey);
    AIErr (*DeleteEntry)(AIDictionaryRef, AIDictKey);
    AIErr (*GetEntryType)(ConstAIDictionaryRef, AIDictKey, AIEntryType*);
    AIErr (*CopyEntry)(ConstAIDictionaryRef, AIDictionaryRef, AIDictKey, AIDictKey);
    AIErr (*MoveEntry)(AIDictionaryRef, AIDictionaryRef, AIDictKey, AIDictKey);
    AIErr (*SwapEntries)(AIDictionaryRef, AIDictionaryRef, AIDictKey, AIDictKey);
    AIErr (*GetArtEntry)(ConstAIDictionaryRef, AIDictKey, AIArtHandle*);
    AIErr (*NewArtEntry)(AIDictionaryRef, AIDictKey, ai::int16);
    AIErr (*MoveArtToEntry)(AIDictionaryRef, AIDictKey, AIArtHandle);
    AIErr (*MoveEntryToArt)(AIDictionaryRef, AIDictKey, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*CopyArtToEntry)(AIDictionaryRef, AIDictKey, AIArtHandle);
    AIErr (*CopyEntryToArt)(ConstAIDictionaryRef, AIDictKey, ai::int16, AIArtHandle, AIArtHandle*);
    AIErr (*SetEntryToLayer)(AIDictionaryRef, AIDictKey, AILayerHandle);
    AIErr (*SetLayerToEntry)(ConstAIDictionaryRef, AIDictKey, ai::int16, AILayerHandle,
                             AILayerHandle*);
    AIEntryRef (*Get)(ConstAIDictionaryRef, AIDictKey);
    AIErr (*Set)(AIDictionaryRef, AIDictKey, AIEntryRef);
    AIErr (*GetBooleanEntry)(ConstAIDictionaryRef, AIDictKey, AIBoolean*);
    AIErr (*SetBooleanEntry)(AIDictionaryRef, AIDictKey, AIBoolean);
    AIErr (*GetIntegerEntry)(ConstAIDictionaryRef, AIDictKey, ai::int32*);
    AIErr (*SetIntegerEntry)(AIDictionaryRef, AIDictKey, ai::int32);
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
