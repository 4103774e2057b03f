#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

// A macro of the Windows headers has this name.
#undef SendMessage

inline constexpr char kSPInterfaceSuite[] = "SP Interface Suite";
inline constexpr ai::int32 kSPInterfaceSuiteVersion = 2;

struct SPInterfaceSuite {
    SPErr (*SendMessage)(SPPluginRef, const char*, const char*, void*, SPErr*);
    SPErr (*SetupMessageData)(SPPluginRef, SPMessageData*);
    SPErr (*EmptyMessageData)(SPPluginRef, SPMessageData*);
    ReservedSlot StartupExport;
};

template <>
struct ai::SuiteId<SPInterfaceSuite>
    : ai::SuiteIdentity<kSPInterfaceSuite, kSPInterfaceSuiteVersion> {};
