#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/Types.h"

inline constexpr char kAIToolSuite[] = "AI Tool Suite";
inline constexpr ai::int32 kAIToolSuiteVersion = 12;

struct AIToolSuite {
    AIErr (*AddTool)(SPPluginRef, const char*, AIAddToolData*, ai::int32, AIToolHandle*);
    ReservedSlot AddToolPrivate;
    AIErr (*GetToolName)(AIToolHandle, char**);
    AIErr (*GetToolOptions)(AIToolHandle, ai::int32*);
    AIErr (*SetToolOptions)(AIToolHandle, ai::int32);
    AIErr (*GetToolPlugin)(AIToolHandle, SPPluginRef*);
    AIErr (*GetSelectedTool)(AIToolHandle*);
    AIErr (*SetSelectedTool)(AIToolHandle);
    AIErr (*CountTools)(ai::int32*);
    AIErr (*GetNthTool)(ai::int32, AIToolHandle*);
    AIErr (*GetToolHandleFromNumber)(AIToolType, AIToolHandle*);
    AIErr (*GetToolNumberFromName)(const char*, AIToolType*);
    AIErr (*GetToolNumberFromHandle)(AIToolHandle, AIToolType*);
    AIErr (*GetToolNameFromNumber)(AIToolType, char**);
    AIErr (*GetToolTitle)(AIToolHandle, char**);
    AIErr (*SetToolTitle)(AIToolHandle, const char*);
    AIErr (*GetTooltip)(AIToolHandle, char**);
    AIErr (*SetTooltip)(AIToolHandle, const char*);
    AIErr (*GetToolHelpID)(AIToolHandle, ASHelpID*);
    AIErr (*SetToolHelpID)(AIToolHandle, ASHelpID);
    AIErr (*SetToolInfoVars)(AIToolHandle, const ai::int32*);
    AIErr (*SetToolInfoVarValues)(const ai::int32*, void**);
    AIErr (*SystemHasPressure)(AIBoolean*);
    AIErr (*GetToolNullEventInterval)(AIToolHandle, AIToolTime*);
    AIErr (*SetToolNullEventInterval)(AIToolHandle, AIToolTime);
    AIErr (*SetSoftSelectedTool)(AIToolHandle);
    AIErr (*IsSoftModeSelection)(AIBoolean*);
    AIErr (*GetAlternateSelectionToolName)(AIToolHandle, char**);
    AIErr (*SetAlternateSelectionToolName)(AIToolHandle, const char*);
    AIErr (*GetCurrentToolName)(const char**);
    AIToolType (*GetLastUsedSelectionTool)(const char**);
    AIErr (*SetSelectedToolByName)(const char*);
};
