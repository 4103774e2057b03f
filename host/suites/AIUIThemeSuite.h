#pragma once

#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIUIThemeSuite[] = "AI User Interface Theme Suite";
inline constexpr ai::int32 kAIUIThemeSuiteVersion = 1;

struct AIUIThemeSuite {
    /// Theme 0 is that of dialogs, 1 that of panels.
    AIErr (*GetUIThemeColor)(ai::int32 theme, ai::int32 component, AIUIThemeColor& color);
    AIBoolean (*IsUIThemeDark)();
};

template <>
struct ai::SuiteId<AIUIThemeSuite> : ai::SuiteIdentity<kAIUIThemeSuite, kAIUIThemeSuiteVersion> {};
