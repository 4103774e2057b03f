#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

#include <array>

inline constexpr char kAIAppContextSuite[] = "AI Context Suite";
inline constexpr ai::int32 kAIAppContextSuiteVersion = 6;
/// Older versions: their slots up to AllowAllChanges are the same.
inline constexpr std::array<ai::int32, 2> kAIAppContextSuiteFallbacks{5, 4};

struct AIAppContextSuite {
    /// The host's main window, the owner of modal ones.
    AIErr (*GetPlatformAppWindow)(AIWindowRef* window);
    /// Fixes the current document; what changes until the context is popped is one undo step.
    AIErr (*PushAppContext)(SPPluginRef self, AIAppContextHandle* context);
    /// Only the one pushed last.
    AIErr (*PopAppContext)(AIAppContextHandle context);
    ReservedSlot MacGetAppQDGlobal;
    AIErr (*SuspendAppContext)(AISuspendedAppContext*);
    AIErr (*ResumeAppContext)(AISuspendedAppContext, AIDocumentHandle);
    /// Whether art under locked or hidden parents may be changed in the current context; `previous`
    /// gets what held before.
    AIErr (*AllowAllChanges)(AIBoolean allow, AIBoolean* previous);
    ReservedSlot AllowProgress, GetPlatformAppMenu, SetAppContextKind;
    AIErr (*SyncAndDraw)();
    ReservedSlot GetRulerWidthOffsetOnActiveDocument;
};

template <>
struct ai::SuiteId<AIAppContextSuite>
    : ai::SuiteIdentity<kAIAppContextSuite, kAIAppContextSuiteVersion,
                        kAIAppContextSuiteFallbacks> {};
