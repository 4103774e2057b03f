#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIFilePathSuite[] = "AI File Path Suite";
inline constexpr ai::int32 kAIFilePathSuiteVersion = 3;

struct AIFilePathSuite {
    /// An empty path, to be given back with `DeleteFilePath`.
    AIErr (*NewFilePath)(ai::FilePath& path);
    AIErr (*DeleteFilePath)(ai::FilePath& path);
    /// The source comes first.
    AIErr (*Copy)(const ai::FilePath& source, ai::FilePath& destination);
    AIBool8 (*IsEmpty)(const ai::FilePath&);
    void (*MakeEmpty)(ai::FilePath&);
    AIBool8 (*Equal)(const ai::FilePath&, const ai::FilePath&, AIBool8);
    AIBool8 (*LessThan)(const ai::FilePath&, const ai::FilePath&);
    AIBool8 (*StartsWithDelimiter)(const ai::FilePath&);
    AIBool8 (*EndsWithDelimiter)(const ai::FilePath&);
    /// Goes down from `path` by one name.
    AIErr (*AddComponent)(const ai::UnicodeString& name, ai::FilePath& path);
    void (*RemoveComponent)(ai::FilePath&);
    void (*AddExtension)(const ai::UnicodeString&, ai::FilePath&);
    void (*RemoveExtension)(ai::FilePath&);
    /// The last two may be null.
    AIBool8 (*Exists)(const ai::FilePath& path, AIBool8 resolveLinks, ai::UnicodeString* longName,
                      AIBool8* isFolder);
    AIErr (*Resolve)(ai::FilePath&);
    /// `path` becomes the one that `text` writes.
    AIErr (*Set)(const ai::UnicodeString& text, AIBool8 expandName, ai::FilePath& path);
    ReservedSlot SetFromSPFileRef;
    AIErr (*GetFileName)(const ai::FilePath&, AIBool8, ai::UnicodeString&);
    AIErr (*GetFileNameNoExt)(const ai::FilePath&, ai::UnicodeString&);
    AIErr (*GetFileExtension)(const ai::FilePath&, ai::UnicodeString&);
    /// As the system writes it, or for users when `displayName` is not 0.
    AIErr (*GetFullPath)(const ai::FilePath& path, AIBool8 displayName, ai::UnicodeString& text);
    AIErr (*GetDirectory)(const ai::FilePath&, AIBool8, ai::UnicodeString&);
    ReservedSlot GetShortPath;
    AIErr (*GetParent)(const ai::FilePath& path, ai::FilePath& parent);
    char (*GetDelimiter)();
    ReservedSlot GetCreatorAndType, GetAsURL, GetAsSPPlatformFileRef, ResetVolumeCache;
};

template <>
struct ai::SuiteId<AIFilePathSuite> : ai::SuiteIdentity<kAIFilePathSuite, kAIFilePathSuiteVersion> {
};
