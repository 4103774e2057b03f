#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIAppContextSuite[] = "AI Context Suite";
inline constexpr ai::int32 kAIAppContextSuiteVersion = 6;

struct AIAppContextSuite {
    AIErr (*GetPlatformAppWindow)(AIWindowRef*);
    AIErr (*PushAppContext)(SPPluginRef, AIAppContextHandle*);
    AIErr (*PopAppContext)(AIAppContextHandle);
    AIErr (*MacGetAppQDGlobal)(void**);
    AIErr (*SuspendAppContext)(AISuspendedAppContext*);
    AIErr (*ResumeAppContext)(AISuspendedAppContext, AIDocumentHandle);
    AIErr (*AllowAllChanges)(AIBoolean, AIBoolean*);
    AIErr (*AllowProgress)(bool);
    ReservedSlot GetPlatformAppMenu;
    ReservedSlot SetAppContextKind;
    AIErr (*SyncAndDraw)();
    AIErr (*GetRulerWidthOffsetOnActiveDocument)(AIRect*, AIRect*, AIRect*);
};
