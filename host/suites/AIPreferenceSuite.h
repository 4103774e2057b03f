#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIPreferenceSuite[] = "AI Preference Suite";
inline constexpr ai::int32 kAIPreferenceSuiteVersion = 5;

struct AIPreferenceSuite {
    /// Leaves `value` alone when there is none. A null prefix means the application's own.
    AIErr (*GetBooleanPreference)(const char* prefix, const char* suffix, AIBoolean* value);
    AIErr (*PutBooleanPreference)(const char* prefix, const char* suffix, AIBoolean value);
    /// As `GetBooleanPreference`, like all getters.
    AIErr (*GetIntegerPreference)(const char* prefix, const char* suffix, ai::int32* value);
    AIErr (*PutIntegerPreference)(const char* prefix, const char* suffix, ai::int32 value);
    /// 64 bits in every generation.
    AIErr (*GetRealPreference)(const char* prefix, const char* suffix, double* value);
    AIErr (*PutRealPreference)(const char* prefix, const char* suffix, double value);
    /// `value` is a buffer of 1024 characters at least.
    AIErr (*GetStringPreference)(const char* prefix, const char* suffix, char* value);
    AIErr (*PutStringPreference)(const char* prefix, const char* suffix, const char* value);
    AIErr (*GetUnicodeStringPreference)(const char*, const char*, ai::UnicodeString&);
    AIErr (*PutUnicodeStringPreference)(const char*, const char*, const ai::UnicodeString&);
    AIErr (*GetBlockPreference)(const char*, const char*, void*, ai::int32);
    AIErr (*PutBlockPreference)(const char*, const char*, void*, ai::int32);
    AIErr (*GetFixedPreference)(const char*, const char*, AIFixed*);
    AIErr (*PutFixedPreference)(const char*, const char*, AIFixed);
    AIErr (*GetFractPreference)(const char*, const char*, AIFract*);
    AIErr (*PutFractPreference)(const char*, const char*, AIFract);
    ReservedSlot GetPascalPreference, PutPascalPreference, GetDateTimePreference,
        PutDateTimePreference;
    AIErr (*GetPointPreference)(const char*, const char*, AIPoint*);
    AIErr (*PutPointPreference)(const char*, const char*, AIPoint*);
    AIErr (*GetRectPreference)(const char*, const char*, AIRect*);
    AIErr (*PutRectPreference)(const char*, const char*, AIRect*);
    AIErr (*GetFilePathSpecificationPreference)(const char*, const char*, ai::FilePath&);
    AIErr (*PutFilePathSpecificationPreference)(const char*, const char*, const ai::FilePath&);
    AIErr (*RemovePreference)(const char*, const char*);
    ReservedSlot AddPreferencePanel, GetPreferencePanelBaseItemIndex, ShowPreferencePanel;
    AIErr (*GetLargeIntegerPreference)(const char*, const char*, ai::int64*);
    AIErr (*PutLargeIntegerPreference)(const char*, const char*, ai::int64);
};

template <>
struct ai::SuiteId<AIPreferenceSuite>
    : ai::SuiteIdentity<kAIPreferenceSuite, kAIPreferenceSuiteVersion> {};
