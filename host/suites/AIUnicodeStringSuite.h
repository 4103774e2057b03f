#pragma once

#include "host/Types.h"

inline constexpr char kAIUnicodeStringSuite[] = "AI Unicode String Suite";
inline constexpr ai::int32 kAIUnicodeStringSuiteVersion = 7;

struct AIUnicodeStringSuite {
    AIErr (*Initialize)(ai::UnicodeString&, const char*, ai::int64, AICharacterEncoding);
    AIErr (*InitializeUTF16)(ai::UnicodeString&, const ASUnicode*, ai::int64);
    AIErr (*InitializeUTF32Char)(ai::UnicodeString&, ai::int64, ai::uint32);
    AIErr (*Destroy)(ai::UnicodeString&);
    AIErr (*Append)(ai::UnicodeString&, const ai::UnicodeString&);
    AIErr (*AppendSubString)(ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    AIErr (*Assign)(ai::UnicodeString&, const ai::UnicodeString&);
    AIErr (*Copy)(ai::UnicodeString&, const ai::UnicodeString&);
    AIErr (*GetChar)(const ai::UnicodeString&, size_t, ai::uint32&);
    void (*Clear)(ai::UnicodeString&);
    ai::int32 (*Compare)(const ai::UnicodeString&, size_t, size_t, const ai::UnicodeString&, size_t,
                         size_t);
    AIErr (*toLower)(ai::UnicodeString&);
    AIErr (*toUpper)(ai::UnicodeString&);
    ai::int32 (*CaseCompare)(const ai::UnicodeString&, size_t, size_t, const ai::UnicodeString&,
                             size_t, size_t);
    AIErr (*CanonicalCompare)(const ai::UnicodeString&, const ai::UnicodeString&, ai::int32&);
    AIErr (*CanonicalCaseCompare)(const ai::UnicodeString&, const ai::UnicodeString&, ai::int32&);
    size_t (*Length)(const ai::UnicodeString&);
    AIBool8 (*Empty)(const ai::UnicodeString&);
    AIErr (*Erase)(ai::UnicodeString&, size_t, size_t);
    size_t (*FindChar)(const ai::UnicodeString&, ai::uint32, size_t);
    size_t (*FindString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t);
    size_t (*FindSubString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*CaseFindSubString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*RFindChar)(const ai::UnicodeString&, ai::uint32, size_t);
    size_t (*RFindString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t);
    size_t (*RFindSubString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*FindFirstOf)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*FindFirstNotOf)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*FindLastOf)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*FindLastNotOf)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    AIErr (*Resize)(ai::UnicodeString&, size_t, ai::uint32);
    AIErr (*SubStr)(ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    AIErr (*SwapStr)(ai::UnicodeString&, ai::UnicodeString&);
    AIBool8 (*HasSurrogates)(const ai::UnicodeString&);
    size_t (*UTF_16)(const ai::UnicodeString&, const ASUnicode*&);
    ReservedSlot GetAs;
    ReservedSlot InitializeZString;
    ReservedSlot Normalize;
};
