#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIToolboxSuite[] = "AI Toolbox Suite";
inline constexpr ai::int32 kAIToolboxSuiteVersion = 5;

struct AIToolboxSuite {
    AIErr (*AddToolbox)(SPPluginRef, const char*, AIToolboxHandle*);
    AIErr (*SetTool)(AIToolboxHandle, AIToolType);
    AIErr (*AlternateAction)(AIToolboxHandle, AIToolType);
    AIErr (*CycleTool)(AIToolboxHandle, AIToolType);
    AIErr (*CountToolboxes)(ai::int32*);
    AIErr (*GetNthToolbox)(ai::int32, AIToolboxHandle*);
    AIErr (*GetCurrentToolType)(AIToolType*);
};
