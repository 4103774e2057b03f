#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

// A macro of the Windows headers has this name.
#undef GetUserName

inline constexpr char kAIRuntimeSuite[] = "AI Runtime Suite";
inline constexpr ai::int32 kAIRuntimeSuiteVersion = 11;

struct AIRuntimeSuite {
    ReservedSlot GetAppName;
    AIErr (*GetAppFileSpecification)(ai::FilePath&);
    ReservedSlot GetUserName, GetUserOrganization, GetUserSerialNumber, GetAppNameSpace,
        GetAppStringPool, GetAppFreeMem, ShowAppAboutBox, GetSystemVersion;
    AIBoolean (*GetIsSystemMacOSX)();
    ai::int32 (*GetAppMajorVersion)();
    ai::int32 (*GetAppMinorVersion)();
    ai::int32 (*GetAppRevisionVersion)();
    AIErr (*GetAppNameUS)(ai::UnicodeString&);
    AIErr (*GetUserNameUS)(ai::UnicodeString&);
    AIErr (*GetUserOrganizationUS)(ai::UnicodeString&);
    ReservedSlot GetDefaultScript, GetIsHonestyBuild;
    AIBoolean (*GetIsProductTryAndDie)();
    ReservedSlot GetIsExeBuild, ShowAdobeHelp, GetAppBuildNumber, GetUserAdobeID;
};

template <>
struct ai::SuiteId<AIRuntimeSuite> : ai::SuiteIdentity<kAIRuntimeSuite, kAIRuntimeSuiteVersion> {};
