#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIGroupSuite[] = "AI Group Suite";
inline constexpr ai::int32 kAIGroupSuiteVersion = 4;

struct AIGroupSuite {
    /// Does a member clip the others?
    AIErr (*GetGroupClipped)(AIArtHandle group, AIBoolean* clipped);
    AIErr (*SetGroupClipped)(AIArtHandle, AIBoolean);
    AIErr (*GetGroupMaskLock)(AIArtHandle, AIBoolean*);
    AIErr (*SetGroupMaskLock)(AIArtHandle, AIBoolean);
    ReservedSlot NormalizeCompoundPath;
};

template <>
struct ai::SuiteId<AIGroupSuite> : ai::SuiteIdentity<kAIGroupSuite, kAIGroupSuiteVersion> {};
