#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/Types.h"

inline constexpr char kSPAccessSuite[] = "SP Access Suite";
inline constexpr ai::int32 kSPAccessSuiteVersion = 3;

struct SPAccessSuite {
    SPErr (*AcquirePlugin)(SPPluginRef, SPAccessRef*);
    SPErr (*ReleasePlugin)(SPAccessRef);
    SPErr (*GetPluginAccess)(SPPluginRef, SPAccessRef*);
    SPErr (*GetAccessPlugin)(SPAccessRef, SPPluginRef*);
    SPErr (*GetAccessEntry)(SPAccessRef, SPEntry*);
    SPErr (*GetAccessCount)(SPAccessRef, ai::int32*);
    SPErr (*GetAccessInfo)(SPAccessRef, SPPlatformAccessInfo*);
    SPErr (*GetPluginResourceAccess)(SPPluginRef, SPPlatformAccessRef*);
    SPErr (*SetPluginResourceAccess)(SPPluginRef, SPPlatformAccessRef);
    SPErr (*CallPlugin)(SPAccessRef, const char*, const char*, void*, SPErr*);
    SPErr (*GetCurrentPlugin)(SPPluginRef*);
    SPErr (*SetCurrentPlugin)(SPPluginRef);
};
