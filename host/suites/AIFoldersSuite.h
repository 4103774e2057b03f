#pragma once

#include "host/Types.h"

inline constexpr char kAIFoldersSuite[] = "AI Folders Suite";
inline constexpr ai::int32 kAIFoldersSuiteVersion = 4;

struct AIFoldersSuite {
    AIErr (*FindFolder)(AIFolderType, AIBoolean, ai::FilePath&);
    AIErr (*GetFolderName)(AIFolderType, ai::UnicodeString&);
    ReservedSlot GetFileName;
};
