#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIPreferenceSuite[] = "AI Preference Suite";
inline constexpr ai::int32 kAIPreferenceSuiteVersion = 5;

struct AIPreferenceSuite {
    AIErr (*GetBooleanPreference)(const char*, const char*, AIBoolean*);
    AIErr (*PutBooleanPreference)(const char*, const char*, AIBoolean);
    AIErr (*GetIntegerPreference)(const char*, const char*, ai::int32*);
    AIErr (*PutIntegerPreference)(const char*, const char*, ai::int32);
    AIErr (*GetRealPreference)(const char*, const char*, double*);
    AIErr (*PutRealPreference)(const char*, const char*, double);
    AIErr (*GetStringPreference)(const char*, const char*, char*);
    AIErr (*PutStringPreference)(const char*, const char*, const char*);
    AIErr (*GetUnicodeStringPreference)(const char*, const char*, ai::UnicodeString&);
    AIErr (*PutUnicodeStringPreference)(const char*, const char*, const ai::UnicodeString&);
    AIErr (*GetBlockPreference)(const char*, const char*, void*, ai::int32);
    AIErr (*PutBlockPreference)(const char*, const char*, void*, ai::int32);
    AIErr (*GetFixedPreference)(const char*, const char*, AIFixed*);
    AIErr (*PutFixedPreference)(const char*, const char*, AIFixed);
    AIErr (*GetFractPreference)(const char*, const char*, AIFract*);
    AIErr (*PutFractPreference)(const char*, const char*, AIFract);
    AIErr (*GetPascalPreference)(const char*, const char*, ai::uint8*);
    AIErr (*PutPascalPreference)(const char*, const char*, const ai::uint8*);
    ReservedSlot GetDateTimePreference;
    ReservedSlot PutDateTimePreference;
    AIErr (*GetPointPreference)(const char*, const char*, AIPoint*);
    AIErr (*PutPointPreference)(const char*, const char*, AIPoint*);
    AIErr (*GetRectPreference)(const char*, const char*, AIRect*);
    AIErr (*PutRectPreference)(const char*, const char*, AIRect*);
    AIErr (*GetFilePathSpecificationPreference)(const char*, const char*, ai::FilePath&);
    AIErr (*PutFilePathSpecificationPreference)(const char*, const char*, const ai::FilePath&);
    AIErr (*RemovePreference)(const char*, const char*);
    ReservedSlot AddPreferencePanel;
    ReservedSlot GetPreferencePanelBaseItemIndex;
    ReservedSlot ShowPreferencePanel;
    AIErr (*GetLargeIntegerPreference)(const char*, const char*, ai::int64*);
    AIErr (*PutLargeIntegerPreference)(const char*, const char*, ai::int64);
};
