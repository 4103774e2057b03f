#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIGroupSuite[] = "AI Group Suite";
inline constexpr ai::int32 kAIGroupSuiteVersion = 4;

struct AIGroupSuite {
    AIErr (*GetGroupClipped)(AIArtHandle, AIBoolean*);
    AIErr (*SetGroupClipped)(AIArtHandle, AIBoolean);
    AIErr (*GetGroupMaskLock)(AIArtHandle, AIBoolean*);
    AIErr (*SetGroupMaskLock)(AIArtHandle, AIBoolean);
    AIErr (*NormalizeCompoundPath)(AIArtHandle, AINormalizeCompoundPathAlgorithm);
};
