#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/Types.h"

// A macro of the Windows headers has this name.
#undef SendMessage

inline constexpr char kSPInterfaceSuite[] = "SP Interface Suite";
inline constexpr ai::int32 kSPInterfaceSuiteVersion = 2;

struct SPInterfaceSuite {
    SPErr (*SendMessage)(SPPluginRef, const char*, const char*, void*, SPErr*);
    SPErr (*SetupMessageData)(SPPluginRef, SPMessageData*);
    SPErr (*EmptyMessageData)(SPPluginRef, SPMessageData*);
    SPErr (*StartupExport)(SPPluginListRef, const char*, ai::int32, ai::int32*);
};
