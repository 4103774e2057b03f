#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIToolSuite[] = "AI Tool Suite";
inline constexpr ai::int32 kAIToolSuiteVersion = 12;

struct AIToolSuite {
    /// Good until the plug-in ends. `data` is read during the call; `options` are bits of
    /// `AIToolOptions`.
    AIErr (*AddTool)(SPPluginRef self, const char* name, AIAddToolData* data, ai::int32 options,
                     AIToolHandle* tool);
    ReservedSlot AddToolPrivate;
    /// The text is the host's.
    AIErr (*GetToolName)(AIToolHandle tool, char** name);
    AIErr (*GetToolOptions)(AIToolHandle, ai::int32*);
    AIErr (*SetToolOptions)(AIToolHandle, ai::int32);
    AIErr (*GetToolPlugin)(AIToolHandle, SPPluginRef*);
    /// Null when it is one of the host's own.
    AIErr (*GetSelectedTool)(AIToolHandle* tool);
    /// Deselects the one before.
    AIErr (*SetSelectedTool)(AIToolHandle tool);
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
    /// What the info display shows for the tool: numbers, ended by -1.
    AIErr (*SetToolInfoVars)(AIToolHandle tool, const ai::int32* variables);
    /// The same list, and for each a pointer to its value: an `AIReal` for a number.
    AIErr (*SetToolInfoVarValues)(const ai::int32* variables, void** values);
    AIErr (*SystemHasPressure)(AIBoolean*);
    AIErr (*GetToolNullEventInterval)(AIToolHandle, AIToolTime*);
    AIErr (*SetToolNullEventInterval)(AIToolHandle, AIToolTime);
    ReservedSlot SetSoftSelectedTool, IsSoftModeSelection;
    AIErr (*GetAlternateSelectionToolName)(AIToolHandle, char**);
    AIErr (*SetAlternateSelectionToolName)(AIToolHandle, const char*);
    /// The text is the host's.
    AIErr (*GetCurrentToolName)(const char** name);
    ReservedSlot GetLastUsedSelectionTool;
    AIErr (*SetSelectedToolByName)(const char* name);
};

template <>
struct ai::SuiteId<AIToolSuite> : ai::SuiteIdentity<kAIToolSuite, kAIToolSuiteVersion> {};
