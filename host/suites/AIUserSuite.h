#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIUserSuite[] = "AI User Suite";
inline constexpr ai::int32 kAIUserSuiteVersion = 10;

struct AIUserSuite {
    AIBoolean (*Cancel)();
    void (*UpdateProgress)(ai::int32, ai::int32);
    void (*SetProgressText)(const ai::UnicodeString&);
    void (*CloseProgress)();
    void (*AIRealToString)(AIReal, ai::int16, ai::UnicodeString&);
    void (*StringToAIReal)(const ai::UnicodeString&, AIReal*);
    /// With the separator of the user's locale.
    void (*IUAIRealToString)(AIReal value, ai::int16 decimals, ai::UnicodeString& text);
    void (*IUStringToAIReal)(const ai::UnicodeString&, AIReal*);
    AIErr (*IUAIRealToStringUnits)(AIReal, ai::int32, ai::UnicodeString&);
    void (*IUStringUnitsToAIReal)(const ai::UnicodeString&, AIReal*);
    AIErr (*GetUnitsString)(ai::int16, ai::UnicodeString&);
    ReservedSlot GetGlobalObjectDisplayName, EditInOriginalApp;
    AIErr (*AppIdle)();
    ReservedSlot BuildDirectoryMenu, GetIndexedDirectorySpec, RevealTheFile, DisableProgressCancel;
    AIBoolean (*OKToAllocateMemory)();
    AIErr (*GetDateAndTime)(AIUserDateTime* clock);
    ReservedSlot GetDateString, GetTimeString, GetYear, GetMonth, GetDay, GetHour, GetMinute,
        GetSecond, GetDayOfWeek;
    /// Declared for applications; `openDocument` hands them the current document as well.
    AIErr (*LaunchApp)(const ai::FilePath& file, AIBoolean openDocument);
    ReservedSlot NextName, CopyOfName;
    AIErr (*SameName)(const ai::UnicodeString&, const ai::UnicodeString&, AIBoolean&);
    ReservedSlot PushCustomProgress, PopCustomProgress, PutFileDialog, GetFileDialog,
        GetDirectoryDialog;
    AIBoolean (*OKCancelAlert)(const ai::UnicodeString&, AIBoolean, const char*);
    /// A box with one button; `dontShowKey` may be null.
    void (*WarningAlert)(const ai::UnicodeString& text, const char* dontShowKey);
    void (*MessageAlertEx)(const ai::UnicodeString&, const char*);
    AIAnswer (*QuestionAlert)(const ai::UnicodeString&);
    AIAnswer (*YesNoAlert)(const ai::UnicodeString&);
    void (*ErrorAlert)(const ai::UnicodeString&);
    void (*MessageAlert)(const ai::UnicodeString&);
    ReservedSlot ChooseFromOSColorPicker, EvaluateExpression, GetInputFromUser;
    /// To be given back with `DisposeCursorResourceMgr`.
    AIErr (*CreateCursorResourceMgr)(SPPluginRef self, AIResourceManagerHandle* manager);
    AIErr (*SetCursor)(ai::int32 id, AIResourceManagerHandle manager);
    AIErr (*DisposeCursorResourceMgr)(AIResourceManagerHandle manager);
    AIErr (*GetAILanguageCode)(ai::UnicodeString&);
    AIReal (*GetMaximumScaleFactorOnSystem)();
};

template <>
struct ai::SuiteId<AIUserSuite> : ai::SuiteIdentity<kAIUserSuite, kAIUserSuiteVersion> {};
