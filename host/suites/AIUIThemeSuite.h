#pragma once

#include "host/Messages.h"
#include "host/Types.h"

inline constexpr char kAIUIThemeSuite[] = "AI User Interface Theme Suite";
inline constexpr ai::int32 kAIUIThemeSuiteVersion = 1;

struct AIUIThemeSuite {
    AIErr (*GetUIThemeColor)(ai::int32, ai::int32, AIUIThemeColor&);
    AIBoolean (*IsUIThemeDark)();
};
