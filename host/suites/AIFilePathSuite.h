#pragma once

#include "host/Types.h"

inline constexpr char kAIFilePathSuite[] = "AI File Path Suite";
inline constexpr ai::int32 kAIFilePathSuiteVersion = 3;

struct AIFilePathSuite {
    AIErr (*NewFilePath)(ai::FilePath&);
    AIErr (*DeleteFilePath)(ai::FilePath&);
    AIErr (*Copy)(const ai::FilePath&, ai::FilePath&);
    AIBool8 (*IsEmpty)(const ai::FilePath&);
    void (*MakeEmpty)(ai::FilePath&);
    AIBool8 (*Equal)(const ai::FilePath&, const ai::FilePath&, AIBool8);
    AIBool8 (*LessThan)(const ai::FilePath&, const ai::FilePath&);
    AIBool8 (*StartsWithDelimiter)(const ai::FilePath&);
    AIBool8 (*EndsWithDelimiter)(const ai::FilePath&);
    AIErr (*AddComponent)(const ai::UnicodeString&, ai::FilePath&);
    void (*RemoveComponent)(ai::FilePath&);
    void (*AddExtension)(const ai::UnicodeString&, ai::FilePath&);
    void (*RemoveExtension)(ai::FilePath&);
    AIBool8 (*Exists)(const ai::FilePath&, AIBool8, ai::UnicodeString*, AIBool8*);
    AIErr (*Resolve)(ai::FilePath&);
    AIErr (*Set)(const ai::UnicodeString&, AIBool8, ai::FilePath&);
    ReservedSlot SetFromSPFileRef;
    AIErr (*GetFileName)(const ai::FilePath&, AIBool8, ai::UnicodeString&);
    AIErr (*GetFileNameNoExt)(const ai::FilePath&, ai::UnicodeString&);
    AIErr (*GetFileExtension)(const ai::FilePath&, ai::UnicodeString&);
    AIErr (*GetFullPath)(const ai::FilePath&, AIBool8, ai::UnicodeString&);
    AIErr (*GetDirectory)(const ai::FilePath&, AIBool8, ai::UnicodeString&);
    AIErr (*GetShortPath)(const ai::FilePath&, ai::UnicodeString&);
    AIErr (*GetParent)(const ai::FilePath&, ai::FilePath&);
    char (*GetDelimiter)();
    AIErr (*GetCreatorAndType)(const ai::FilePath&, ai::uint32*, ai::uint32*);
    AIErr (*GetAsURL)(const ai::FilePath&, AIBool8, ai::UnicodeString&);
    ReservedSlot GetAsSPPlatformFileRef;
    void (*ResetVolumeCache)();
};
