#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kSPAccessSuite[] = "SP Access Suite";
inline constexpr ai::int32 kSPAccessSuiteVersion = 3;

struct SPAccessSuite {
    /// Keeps the plug-in loaded until it is released.
    SPErr (*AcquirePlugin)(SPPluginRef plugin, SPAccessRef* access);
    SPErr (*ReleasePlugin)(SPAccessRef access);
    SPErr (*GetPluginAccess)(SPPluginRef, SPAccessRef*);
    SPErr (*GetAccessPlugin)(SPAccessRef, SPPluginRef*);
    SPErr (*GetAccessEntry)(SPAccessRef, SPEntry*);
    SPErr (*GetAccessCount)(SPAccessRef, ai::int32*);
    SPErr (*GetAccessInfo)(SPAccessRef, SPPlatformAccessInfo*);
    /// Where its resources are: a module handle, not to be closed.
    SPErr (*GetPluginResourceAccess)(SPPluginRef plugin, SPPlatformAccessRef* library);
    SPErr (*SetPluginResourceAccess)(SPPluginRef, SPPlatformAccessRef);
    SPErr (*CallPlugin)(SPAccessRef, const char*, const char*, void*, SPErr*);
    SPErr (*GetCurrentPlugin)(SPPluginRef*);
    SPErr (*SetCurrentPlugin)(SPPluginRef);
};

template <>
struct ai::SuiteId<SPAccessSuite> : ai::SuiteIdentity<kSPAccessSuite, kSPAccessSuiteVersion> {};
