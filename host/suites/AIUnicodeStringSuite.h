#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIUnicodeStringSuite[] = "AI Unicode String Suite";
inline constexpr ai::int32 kAIUnicodeStringSuiteVersion = 7;

struct AIUnicodeStringSuite {
    /// `size` in bytes. `string` must be empty, and is to be given back with `Destroy`.
    AIErr (*Initialize)(ai::UnicodeString& string, const char* text, ai::int64 size,
                        AICharacterEncoding encoding);
    /// `size` in units of 16 bits; otherwise the same.
    AIErr (*InitializeUTF16)(ai::UnicodeString& string, const ASUnicode* text, ai::int64 size);
    AIErr (*InitializeUTF32Char)(ai::UnicodeString&, ai::int64, ai::uint32);
    AIErr (*Destroy)(ai::UnicodeString& string);
    AIErr (*Append)(ai::UnicodeString&, const ai::UnicodeString&);
    AIErr (*AppendSubString)(ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    /// Makes `string`, whatever it was, a copy of `other`.
    AIErr (*Assign)(ai::UnicodeString& string, const ai::UnicodeString& other);
    AIErr (*Copy)(ai::UnicodeString&, const ai::UnicodeString&);
    /// A whole character, not a unit; fails one past the last.
    AIErr (*GetChar)(const ai::UnicodeString& string, size_t index, ai::uint32& character);
    void (*Clear)(ai::UnicodeString&);
    ai::int32 (*Compare)(const ai::UnicodeString&, size_t, size_t, const ai::UnicodeString&, size_t,
                         size_t);
    AIErr (*toLower)(ai::UnicodeString&);
    AIErr (*toUpper)(ai::UnicodeString&);
    ai::int32 (*CaseCompare)(const ai::UnicodeString&, size_t, size_t, const ai::UnicodeString&,
                             size_t, size_t);
    ReservedSlot CanonicalCompare, CanonicalCaseCompare;
    size_t (*Length)(const ai::UnicodeString&);
    AIBool8 (*Empty)(const ai::UnicodeString&);
    AIErr (*Erase)(ai::UnicodeString&, size_t, size_t);
    size_t (*FindChar)(const ai::UnicodeString&, ai::uint32, size_t);
    size_t (*FindString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t);
    size_t (*FindSubString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*CaseFindSubString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    size_t (*RFindChar)(const ai::UnicodeString&, ai::uint32, size_t);
    size_t (*RFindString)(const ai::UnicodeString&, const ai::UnicodeString&, size_t);
    ReservedSlot RFindSubString, FindFirstOf, FindFirstNotOf, FindLastOf, FindLastNotOf;
    AIErr (*Resize)(ai::UnicodeString&, size_t, ai::uint32);
    AIErr (*SubStr)(ai::UnicodeString&, const ai::UnicodeString&, size_t, size_t);
    AIErr (*SwapStr)(ai::UnicodeString&, ai::UnicodeString&);
    AIBool8 (*HasSurrogates)(const ai::UnicodeString&);
    size_t (*UTF_16)(const ai::UnicodeString&, const ASUnicode*&);
    ReservedSlot GetAs, InitializeZString, Normalize;
};

template <>
struct ai::SuiteId<AIUnicodeStringSuite>
    : ai::SuiteIdentity<kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion> {};
