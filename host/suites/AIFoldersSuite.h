#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIFoldersSuite[] = "AI Folders Suite";
inline constexpr ai::int32 kAIFoldersSuiteVersion = 4;

struct AIFoldersSuite {
    AIErr (*FindFolder)(AIFolderType, AIBoolean, ai::FilePath&);
    AIErr (*GetFolderName)(AIFolderType, ai::UnicodeString&);
    ReservedSlot GetFileName;
};

template <>
struct ai::SuiteId<AIFoldersSuite> : ai::SuiteIdentity<kAIFoldersSuite, kAIFoldersSuiteVersion> {};
