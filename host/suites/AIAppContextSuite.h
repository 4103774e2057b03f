#pragma once

#include "host/Handles.h"
#include "host/Types.h"

#include <array>

inline constexpr char kAIAppContextSuite[] = "AI Context Suite";
inline constexpr ai::int32 kAIAppContextSuiteVersion = 6;
/// Older versions: their slots up to AllowAllChanges are the same.
inline constexpr std::array<ai::int32, 2> kAIAppContextSuiteFallbacks{5, 4};

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
