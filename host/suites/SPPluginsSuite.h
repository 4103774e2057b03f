#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

#include <array>

inline constexpr char kSPPluginsSuite[] = "SP Plug-ins Suite";
inline constexpr ai::int32 kSPPluginsSuiteVersion = 4;
/// Newer versions: slots are added behind, and some take wider file names.
inline constexpr std::array<ai::int32, 2> kSPPluginsSuiteFallbacks{6, 5};

struct SPPluginsSuite {
    ReservedSlot AllocatePluginList, FreePluginList, AddPlugin, NewPluginListIterator, NextPlugin,
        DeletePluginListIterator, GetPluginListNeededSuiteAvailable;
    SPErr (*GetPluginHostEntry)(SPPluginRef, SPPluginEntryFunc*);
    ReservedSlot GetPluginFileReference, GetPluginPropertyList;
    SPErr (*GetPluginGlobals)(SPPluginRef, void**);
    SPErr (*SetPluginGlobals)(SPPluginRef, void*);
    SPErr (*GetPluginStarted)(SPPluginRef, ai::int32*);
    SPErr (*SetPluginStarted)(SPPluginRef, ai::int32);
    SPErr (*GetPluginSkipShutdown)(SPPluginRef, ai::int32*);
    SPErr (*SetPluginSkipShutdown)(SPPluginRef, ai::int32);
    SPErr (*GetPluginBroken)(SPPluginRef, ai::int32*);
    SPErr (*SetPluginBroken)(SPPluginRef, ai::int32);
    ReservedSlot GetPluginAdapter, GetPluginAdapterInfo, SetPluginAdapterInfo, FindPluginProperty;
    /// The text is the host's.
    SPErr (*GetPluginName)(SPPluginRef plugin, const char** name);
    SPErr (*SetPluginName)(SPPluginRef, const char*);
    SPErr (*GetNamedPlugin)(const char*, SPPluginRef*);
    ReservedSlot SetPluginPropertyList;
};

template <>
struct ai::SuiteId<SPPluginsSuite>
    : ai::SuiteIdentity<kSPPluginsSuite, kSPPluginsSuiteVersion, kSPPluginsSuiteFallbacks> {};
