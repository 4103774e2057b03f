#pragma once

#include "host/Handles.h"
#include "host/PathStyle.h"
#include "host/Types.h"

inline constexpr char kAIEntrySuite[] = "AI Entry Suite";
inline constexpr ai::int32 kAIEntrySuiteVersion = 6;

/// Counted values of dictionaries and arrays. Every `To...` and `As...` call consumes the entry
/// passed to it.
struct AIEntrySuite {
    ai::int32 (*AddRef)(AIEntryRef);
    ai::int32 (*Release)(AIEntryRef);
    AIEntryType (*GetType)(AIEntryRef);
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
    AIErr (*ToString)(AIEntryRef, const char**);
    AIEntryRef (*FromString)(const char*);
    AIErr (*ToDict)(AIEntryRef, AIDictionaryRef*);
    AIEntryRef (*FromDict)(AIDictionaryRef);
    AIErr (*ToArt)(AIEntryRef, AIArtHandle*);
    AIErr (*ToArray)(AIEntryRef, AIArrayRef*);
    AIEntryRef (*FromArray)(AIArrayRef);
    AIErr (*ToBinary)(AIEntryRef, void*, std::size_t*);
    AIEntryRef (*FromBinary)(void*, std::size_t);
    AIErr (*ToPattern)(AIEntryRef, AIPatternHandle*);
    AIEntryRef (*FromPattern)(AIPatternHandle);
    AIErr (*ToBrushPattern)(AIEntryRef, AIPatternHandle*);
    AIEntryRef (*FromBrushPattern)(AIPatternHandle);
    AIErr (*ToGradient)(AIEntryRef, AIGradientHandle*);
    AIEntryRef (*FromGradient)(AIGradientHandle);
    AIErr (*ToCustomColor)(AIEntryRef, AICustomColorHandle*);
    AIEntryRef (*FromCustomColor)(AICustomColorHandle);
    AIErr (*ToPluginObject)(AIEntryRef, AIObjectHandle*);
    AIEntryRef (*FromPluginObject)(AIObjectHandle);
    AIErr (*ToFillStyle)(AIEntryRef, AIFillStyle*);
    AIEntryRef (*FromFillStyle)(const AIFillStyle*);
    AIErr (*ToStrokeStyle)(AIEntryRef, AIStrokeStyle*);
    AIEntryRef (*FromStrokeStyle)(const AIStrokeStyle*);
    AIErr (*ToUID)(AIEntryRef, AIUIDRef*);
    AIEntryRef (*FromUID)(AIUIDRef);
    AIErr (*ToUIDREF)(AIEntryRef, AIUIDREFRef*);
    AIEntryRef (*FromUIDREF)(AIUIDREFRef);
    AIErr (*ToXMLNode)(AIEntryRef, AIXMLNodeRef*);
    AIEntryRef (*FromXMLNode)(AIXMLNodeRef);
    AIErr (*ToSVGFilterHandle)(AIEntryRef, AISVGFilterHandle*);
    AIEntryRef (*FromSVGFilterHandle)(AISVGFilterHandle);
    AIErr (*ToSymbolPattern)(AIEntryRef, AIPatternHandle*);
    AIEntryRef (*FromSymbolPattern)(AIPatternHandle);
    AIErr (*AsBoolean)(AIEntryRef, AIBoolean*);
    AIErr (*AsInteger)(AIEntryRef, ai::int32*);
    AIErr (*AsReal)(AIEntryRef, AIReal*);
    AIErr (*AsString)(AIEntryRef, const char**);
    AIErr (*AsUIDREF)(AIEntryRef, AIUIDREFRef*);
    AIErr (*ToArtStyle)(AIEntryRef, AIArtStyleHandle*);
    AIEntryRef (*FromArtStyle)(AIArtStyleHandle);
    AIErr (*ToUnicodeString)(AIEntryRef, ai::UnicodeString&);
    AIEntryRef (*FromUnicodeString)(const ai::UnicodeString&);
    AIErr (*AsUnicodeString)(AIEntryRef, ai::UnicodeString&);
    AIBoolean (*Equiv)(AIEntryRef, AIEntryRef);
};
