#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIArraySuite[] = "AI Array Suite";
inline constexpr ai::int32 kAIArraySuiteVersion = 5;

struct AIArraySuite {
    AIErr (*CreateArray)(AIArrayRef*);
    ai::int32 (*AddRef)(AIArrayRef);
    ai::int32 (*Release)(AIArrayRef);
    AIErr (*Clone)(AIArrayRef, AIArrayRef*);
    AIErr (*Copy)(AIArrayRef, AIArrayRef);
    ai::int32 (*Size)(AIArrayRef);
    AIErr (*DeleteEntry)(AIArrayRef, ai::int32);
    AIErr (*InsertEntry)(AIArrayRef, ai::int32);
    AIErr (*GetEntryType)(AIArrayRef, ai::int32, AIEntryType*);
    AIErr (*CopyEntry)(AIArrayRef, AIArrayRef, ai::int32, ai::int32);
    AIErr (*MoveEntry)(AIArrayRef, AIArrayRef, ai::int32, ai::int32, ai::int32*);
    AIErr (*SwapEntries)(AIArrayRef, AIArrayRef, ai::int32, ai::int32);
    ReservedSlot GetArtEntry, NewArtEntry, MoveArtToEntry, MoveEntryToArt, CopyArtToEntry,
        CopyEntryToArt, SetEntryToLayer, SetLayerToEntry;
    AIEntryRef (*Get)(AIArrayRef, ai::int32);
    AIErr (*Set)(AIArrayRef, ai::int32, AIEntryRef);
    AIErr (*GetBooleanEntry)(AIArrayRef, ai::int32, AIBoolean*);
    AIErr (*SetBooleanEntry)(AIArrayRef, ai::int32, AIBoolean);
    AIErr (*GetIntegerEntry)(AIArrayRef, ai::int32, ai::int32*);
    AIErr (*SetIntegerEntry)(AIArrayRef, ai::int32, ai::int32);
    AIErr (*GetRealEntry)(AIArrayRef, ai::int32, AIReal*);
    AIErr (*SetRealEntry)(AIArrayRef, ai::int32, AIReal);
    AIErr (*GetStringEntry)(AIArrayRef, ai::int32, const char**);
    AIErr (*SetStringEntry)(AIArrayRef, ai::int32, const char*);
    AIErr (*GetBinaryEntry)(AIArrayRef, ai::int32, void*, ai::int32*);
    AIErr (*SetBinaryEntry)(AIArrayRef, ai::int32, void*, ai::int32);
    AIErr (*GetDictEntry)(AIArrayRef, ai::int32, AIDictionaryRef*);
    AIErr (*SetDictEntry)(AIArrayRef, ai::int32, AIDictionaryRef);
    AIErr (*GetArrayEntry)(AIArrayRef, ai::int32, AIArrayRef*);
    AIErr (*SetArrayEntry)(AIArrayRef, ai::int32, AIArrayRef);
    AIErr (*GetUnicodeStringEntry)(AIArrayRef, ai::int32, ai::UnicodeString&);
    AIErr (*SetUnicodeStringEntry)(AIArrayRef, ai::int32, const ai::UnicodeString&);
    AIErr (*AppendEntry)(AIArrayRef, AIEntryRef);
    AIErr (*Reserve)(AIArrayRef, ai::int32);
};

template <>
struct ai::SuiteId<AIArraySuite> : ai::SuiteIdentity<kAIArraySuite, kAIArraySuiteVersion> {};
