#pragma once

#include "host/Types.h"

// A macro of the Windows headers has this name.
#undef GetUserName

inline constexpr char kAIRuntimeSuite[] = "AI Runtime Suite";
inline constexpr ai::int32 kAIRuntimeSuiteVersion = 11;

struct AIRuntimeSuite {
    ReservedSlot GetAppName;
    AIErr (*GetAppFileSpecification)(ai::FilePath&);
    ReservedSlot GetUserName;
    ReservedSlot GetUserOrganization;
    ReservedSlot GetUserSerialNumber;
    ReservedSlot GetAppNameSpace;
    ReservedSlot GetAppStringPool;
    std::size_t (*GetAppFreeMem)();
    AIErr (*ShowAppAboutBox)();
    ai::int32 (*GetSystemVersion)();
    AIBoolean (*GetIsSystemMacOSX)();
    ai::int32 (*GetAppMajorVersion)();
    ai::int32 (*GetAppMinorVersion)();
    ai::int32 (*GetAppRevisionVersion)();
    AIErr (*GetAppNameUS)(ai::UnicodeString&);
    AIErr (*GetUserNameUS)(ai::UnicodeString&);
    AIErr (*GetUserOrganizationUS)(ai::UnicodeString&);
    ReservedSlot GetDefaultScript;
    AIBoolean (*GetIsHonestyBuild)();
    AIBoolean (*GetIsProductTryAndDie)();
    AIBoolean (*GetIsExeBuild)();
    AIErr (*ShowAdobeHelp)(const char*);
    ai::int32 (*GetAppBuildNumber)(AIBoolean*);
    ai::int32 (*GetUserAdobeID)(const char**, const char**);
};
