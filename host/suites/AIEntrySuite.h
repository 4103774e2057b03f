#pragma once

#include "host/Handles.h"
#include "host/PathStyle.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIEntrySuite[] = "AI Entry Suite";
inline constexpr ai::int32 kAIEntrySuiteVersion = 6;

/// Counted values of dictionaries and arrays. Every `To...` and `As...` call consumes the entry
/// passed to it.
struct AIEntrySuite {
    ai::int32 (*AddRef)(AIEntryRef);
    /// Answers the new count.
    ai::int32 (*Release)(AIEntryRef entry);
    /// Does not consume the entry.
    AIEntryType (*GetType)(AIEntryRef entry);
    AIErr (*ToBoolean)(AIEntryRef, AIBoolean*);
    AIEntryRef (*FromBoolean)(AIBoolean);
    AIErr (*ToInteger)(AIEntryRef, ai::int32*);
    AIEntryRef (*FromInteger)(ai::int32);
    AIErr (*ToReal)(AIEntryRef, AIReal*);
    AIEntryRef (*FromReal)(AIReal);
    AIErr (*ToRealPoint)(AIEntryRef, AIRealPoint*);
    AIEntryRef (*FromRealPoint)(const AIRealPoint*);
    AIErr (*ToRealMatrix)(AIEntryRef, AIRealMatrix*);
    AIEntryRef (*FromRealMatrix)(const AIRealMatrix*);
    /// Consumes the entry; `text` is to be copied before the next call.
    AIErr (*ToString)(AIEntryRef entry, const char** text);
    /// To be released, or consumed by a call. Copies `text`.
    AIEntryRef (*FromString)(const char* text);
    /// Consumes the entry; the dictionary is to be released.
    AIErr (*ToDict)(AIEntryRef entry, AIDictionaryRef* dictionary);
    /// Shares the dictionary; the caller's own reference stays the caller's.
    AIEntryRef (*FromDict)(AIDictionaryRef dictionary);
    ReservedSlot ToArt;
    AIErr (*ToArray)(AIEntryRef, AIArrayRef*);
    AIEntryRef (*FromArray)(AIArrayRef);
    AIErr (*ToBinary)(AIEntryRef, void*, std::size_t*);
    AIEntryRef (*FromBinary)(void*, std::size_t);
    ReservedSlot ToPattern, FromPattern, ToBrushPattern, FromBrushPattern, ToGradient, FromGradient,
        ToCustomColor, FromCustomColor, ToPluginObject, FromPluginObject, ToFillStyle,
        FromFillStyle, ToStrokeStyle, FromStrokeStyle, ToUID, FromUID, ToUIDREF, FromUIDREF,
        ToXMLNode, FromXMLNode, ToSVGFilterHandle, FromSVGFilterHandle, ToSymbolPattern,
        FromSymbolPattern;
    AIErr (*AsBoolean)(AIEntryRef, AIBoolean*);
    AIErr (*AsInteger)(AIEntryRef, ai::int32*);
    AIErr (*AsReal)(AIEntryRef, AIReal*);
    AIErr (*AsString)(AIEntryRef, const char**);
    ReservedSlot AsUIDREF, ToArtStyle, FromArtStyle;
    AIErr (*ToUnicodeString)(AIEntryRef, ai::UnicodeString&);
    AIEntryRef (*FromUnicodeString)(const ai::UnicodeString&);
    AIErr (*AsUnicodeString)(AIEntryRef, ai::UnicodeString&);
    AIBoolean (*Equiv)(AIEntryRef, AIEntryRef);
};

template <>
struct ai::SuiteId<AIEntrySuite> : ai::SuiteIdentity<kAIEntrySuite, kAIEntrySuiteVersion> {};
