#include "host/suites/SPPluginsSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

Plugin& pluginAt(SPPluginRef ref) { return host().plugins.at(ref); }

SPErr getEntry(SPPluginRef ref, SPPluginEntryFunc* entry) {
    required(entry) = pluginAt(ref).entry;
    return kNoErr;
}

SPErr getGlobals(SPPluginRef ref, void** globals) {
    required(globals) = pluginAt(ref).globals;
    return kNoErr;
}

SPErr setGlobals(SPPluginRef ref, void* globals) {
    pluginAt(ref).globals = globals;
    return kNoErr;
}

template <bool Plugin::*Flag> SPErr getFlag(SPPluginRef ref, ai::int32* flag) {
    required(flag) = pluginAt(ref).*Flag ? 1 : 0;
    return kNoErr;
}

template <bool Plugin::*Flag> SPErr setFlag(SPPluginRef ref, ai::int32 flag) {
    pluginAt(ref).*Flag = flag != 0;
    return kNoErr;
}

SPErr getName(SPPluginRef ref, const char** name) {
    required(name) = pluginAt(ref).name.c_str();
    return kNoErr;
}

SPErr setName(SPPluginRef ref, const char* name) {
    pluginAt(ref).name = &required(name);
    return kNoErr;
}

SPErr getNamed(const char* name, SPPluginRef* plugin) {
    required(plugin) = host().pluginNamed(&required(name));
    return *plugin == nullptr ? kSPPluginNotFoundError : kNoErr;
}

} // namespace

void installSPPluginsSuite(SuiteServer& server) {
    auto table = server.table<SPPluginsSuite>(kSPPluginsSuite, kSPPluginsSuiteVersion);
    expose<&SPPluginsSuite::GetPluginHostEntry, getEntry>(table);
    expose<&SPPluginsSuite::GetPluginGlobals, getGlobals>(table);
    expose<&SPPluginsSuite::SetPluginGlobals, setGlobals>(table);
    expose<&SPPluginsSuite::GetPluginStarted, getFlag<&Plugin::started>>(table);
    expose<&SPPluginsSuite::SetPluginStarted, setFlag<&Plugin::started>>(table);
    expose<&SPPluginsSuite::GetPluginSkipShutdown, getFlag<&Plugin::skipShutdown>>(table);
    expose<&SPPluginsSuite::SetPluginSkipShutdown, setFlag<&Plugin::skipShutdown>>(table);
    expose<&SPPluginsSuite::GetPluginBroken, getFlag<&Plugin::broken>>(table);
    expose<&SPPluginsSuite::SetPluginBroken, setFlag<&Plugin::broken>>(table);
    expose<&SPPluginsSuite::GetPluginName, getName>(table);
    expose<&SPPluginsSuite::SetPluginName, setName>(table);
    expose<&SPPluginsSuite::GetNamedPlugin, getNamed>(table);
}

} // namespace easel
