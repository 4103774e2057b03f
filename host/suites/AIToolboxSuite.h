#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIToolboxSuite[] = "AI Toolbox Suite";
inline constexpr ai::int32 kAIToolboxSuiteVersion = 5;

struct AIToolboxSuite {
    ReservedSlot AddToolbox;
    AIErr (*SetTool)(AIToolboxHandle, AIToolType);
    ReservedSlot AlternateAction, CycleTool;
    AIErr (*CountToolboxes)(ai::int32*);
    ReservedSlot GetNthToolbox;
    /// The number of the tool in hand, the host's own included.
    AIErr (*GetCurrentToolType)(AIToolType* type);
};

template <>
struct ai::SuiteId<AIToolboxSuite> : ai::SuiteIdentity<kAIToolboxSuite, kAIToolboxSuiteVersion> {};
