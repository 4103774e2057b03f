#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/Types.h"

#include <array>

inline constexpr char kSPPluginsSuite[] = "SP Plug-ins Suite";
inline constexpr ai::int32 kSPPluginsSuiteVersion = 4;
/// Newer versions: slots are added behind, and some take wider file names.
inline constexpr std::array<ai::int32, 2> kSPPluginsSuiteFallbacks{6, 5};

struct SPPluginsSuite {
    SPErr (*AllocatePluginList)(SPStringPoolRef, SPPluginListRef*);
    SPErr (*FreePluginList)(SPPluginListRef);
    ReservedSlot AddPlugin;
    SPErr (*NewPluginListIterator)(SPPluginListRef, SPPluginListIteratorRef*);
    SPErr (*NextPlugin)(SPPluginListIteratorRef, SPPluginRef*);
    SPErr (*DeletePluginListIterator)(SPPluginListIteratorRef);
    SPErr (*GetPluginListNeededSuiteAvailable)(SPPluginListRef, SPBoolean*);
    SPErr (*GetPluginHostEntry)(SPPluginRef, SPPluginEntryFunc*);
    ReservedSlot GetPluginFileReference;
    SPErr (*GetPluginPropertyList)(SPPluginRef, SPPropertyListRef*);
    SPErr (*GetPluginGlobals)(SPPluginRef, void**);
    SPErr (*SetPluginGlobals)(SPPluginRef, void*);
    SPErr (*GetPluginStarted)(SPPluginRef, ai::int32*);
    SPErr (*SetPluginStarted)(SPPluginRef, ai::int32);
    SPErr (*GetPluginSkipShutdown)(SPPluginRef, ai::int32*);
    SPErr (*SetPluginSkipShutdown)(SPPluginRef, ai::int32);
    SPErr (*GetPluginBroken)(SPPluginRef, ai::int32*);
    SPErr (*SetPluginBroken)(SPPluginRef, ai::int32);
    SPErr (*GetPluginAdapter)(SPPluginRef, SPAdapterRef*);
    SPErr (*GetPluginAdapterInfo)(SPPluginRef, void**);
    SPErr (*SetPluginAdapterInfo)(SPPluginRef, void*);
    ReservedSlot FindPluginProperty;
    SPErr (*GetPluginName)(SPPluginRef, const char**);
    SPErr (*SetPluginName)(SPPluginRef, const char*);
    SPErr (*GetNamedPlugin)(const char*, SPPluginRef*);
    ReservedSlot SetPluginPropertyList;
};
