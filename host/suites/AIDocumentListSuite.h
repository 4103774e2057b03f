#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIDocumentListSuite[] = "AI Document List Suite";
inline constexpr ai::int32 kAIDocumentListSuiteVersion = 7;

struct AIDocumentListSuite {
    AIErr (*Count)(ai::int32*);
    AIErr (*GetNthDocument)(AIDocumentHandle*, ai::int32);
    ReservedSlot New;
    ReservedSlot Open;
    AIErr (*Save)(AIDocumentHandle);
    AIErr (*Close)(AIDocumentHandle);
    AIErr (*CloseAll)();
    AIErr (*Activate)(AIDocumentHandle, AIBoolean);
    ReservedSlot Print;
    ReservedSlot GetPresetSettings;
    ai::int32 (*CountRecentDocuments)();
    AIErr (*GetNthRecentDocument)(ai::int32, ai::FilePath&);
    AIErr (*OpenNthRecentDocument)(ai::int32);
    AIErr (*AddToRecentFiles)(const ai::FilePath&);
};
