#pragma once

#include "host/Handles.h"
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
    void (*IUAIRealToString)(AIReal, ai::int16, ai::UnicodeString&);
    void (*IUStringToAIReal)(const ai::UnicodeString&, AIReal*);
    AIErr (*IUAIRealToStringUnits)(AIReal, ai::int32, ai::UnicodeString&);
    void (*IUStringUnitsToAIReal)(const ai::UnicodeString&, AIReal*);
    AIErr (*GetUnitsString)(ai::int16, ai::UnicodeString&);
    AIErr (*GetGlobalObjectDisplayName)(ai::UnicodeString&);
    AIErr (*EditInOriginalApp)(AIArtHandle);
    AIErr (*AppIdle)();
    AIErr (*BuildDirectoryMenu)(AIPlatformMenuHandle, const ai::FilePath&);
    AIErr (*GetIndexedDirectorySpec)(ai::FilePath&, ai::int32);
    AIErr (*RevealTheFile)(const ai::FilePath&);
    void (*DisableProgressCancel)();
    AIBoolean (*OKToAllocateMemory)();
    AIErr (*GetDateAndTime)(AIUserDateTime*);
    AIErr (*GetDateString)(const AIUserDateTime*, ai::int32, ai::UnicodeString&);
    AIErr (*GetTimeString)(const AIUserDateTime*, ai::int32, ai::UnicodeString&);
    AIErr (*GetYear)(const AIUserDateTime*, ai::int32*);
    AIErr (*GetMonth)(const AIUserDateTime*, ai::int32*);
    AIErr (*GetDay)(const AIUserDateTime*, ai::int32*);
    AIErr (*GetHour)(const AIUserDateTime*, ai::int32*);
    AIErr (*GetMinute)(const AIUserDateTime*, ai::int32*);
    AIErr (*GetSecond)(const AIUserDateTime*, ai::int32*);
    AIErr (*GetDayOfWeek)(const AIUserDateTime*, ai::int32*);
    AIErr (*LaunchApp)(const ai::FilePath&, AIBoolean);
    ReservedSlot NextName;
    ReservedSlot CopyOfName;
    AIErr (*SameName)(const ai::UnicodeString&, const ai::UnicodeString&, AIBoolean&);
    ReservedSlot PushCustomProgress;
    AIErr (*PopCustomProgress)();
    ReservedSlot PutFileDialog;
    ReservedSlot GetFileDialog;
    AIErr (*GetDirectoryDialog)(const ai::UnicodeString&, ai::FilePath&);
    AIBoolean (*OKCancelAlert)(const ai::UnicodeString&, AIBoolean, const char*);
    void (*WarningAlert)(const ai::UnicodeString&, const char*);
    void (*MessageAlertEx)(const ai::UnicodeString&, const char*);
    AIAnswer (*QuestionAlert)(const ai::UnicodeString&);
    AIAnswer (*YesNoAlert)(const ai::UnicodeString&);
    void (*ErrorAlert)(const ai::UnicodeString&);
    void (*MessageAlert)(const ai::UnicodeString&);
    AIBoolean (*ChooseFromOSColorPicker)(const AIPoint&, const AIRGBColor&, AIRGBColor*);
    ReservedSlot EvaluateExpression;
    ReservedSlot GetInputFromUser;
    AIErr (*CreateCursorResourceMgr)(SPPluginRef, AIResourceManagerHandle*);
    AIErr (*SetCursor)(ai::int32, AIResourceManagerHandle);
    AIErr (*DisposeCursorResourceMgr)(AIResourceManagerHandle);
    AIErr (*GetAILanguageCode)(ai::UnicodeString&);
    AIReal (*GetMaximumScaleFactorOnSystem)();
};
