#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIDocumentListSuite[] = "AI Document List Suite";
inline constexpr ai::int32 kAIDocumentListSuiteVersion = 7;

struct AIDocumentListSuite {
    /// Of windows: a document with two counts twice.
    AIErr (*Count)(ai::int32* count);
    AIErr (*GetNthDocument)(AIDocumentHandle*, ai::int32);
    ReservedSlot New, Open;
    AIErr (*Save)(AIDocumentHandle);
    AIErr (*Close)(AIDocumentHandle);
    AIErr (*CloseAll)();
    AIErr (*Activate)(AIDocumentHandle, AIBoolean);
    ReservedSlot Print, GetPresetSettings;
    ai::int32 (*CountRecentDocuments)();
    ReservedSlot GetNthRecentDocument, OpenNthRecentDocument, AddToRecentFiles;
};

template <>
struct ai::SuiteId<AIDocumentListSuite>
    : ai::SuiteIdentity<kAIDocumentListSuite, kAIDocumentListSuiteVersion> {};
