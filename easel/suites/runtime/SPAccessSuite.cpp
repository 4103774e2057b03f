#include "host/suites/SPAccessSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/Ledger.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

SPPluginRef pluginOf(SPAccessRef access) {
    const SPPluginRef found = host().plugins.findIf(
        [&](const Plugin& plugin) { return access != nullptr && plugin.access == access; });
    if (found == nullptr) throw ai::Error{kSPBadParameterError};
    return found;
}

Plugin& accessed(SPAccessRef access) { return host().plugins.at(pluginOf(access)); }

SPErr acquirePlugin(SPPluginRef ref, SPAccessRef* access) {
    SPAccessRef& result = required(access);
    host().load(ref, kAccessAtRunTime);
    Plugin& plugin = host().plugins.at(ref);
    ++plugin.accessCount;
    ledger().lend(Lent::PluginAccess, plugin.access);
    result = plugin.access;
    return kNoErr;
}

SPErr releasePlugin(SPAccessRef access) {
    Plugin& plugin = accessed(access);
    if (plugin.accessCount == 0) return kSPPluginAlreadyReleasedError;
    --plugin.accessCount;
    ledger().takeBack(Lent::PluginAccess, access);
    return kNoErr;
}

SPErr getPluginAccess(SPPluginRef ref, SPAccessRef* access) {
    required(access) = host().plugins.at(ref).access;
    return kNoErr;
}

SPErr getAccessPlugin(SPAccessRef access, SPPluginRef* plugin) {
    required(plugin) = pluginOf(access);
    return kNoErr;
}

SPErr getAccessEntry(SPAccessRef access, SPEntry* entry) {
    required(entry) = accessed(access).entry;
    return kNoErr;
}

SPErr getAccessCount(SPAccessRef access, ai::int32* count) {
    required(count) = accessed(access).accessCount;
    return kNoErr;
}

SPPlatformAccessRef libraryOf(const Plugin& plugin) {
    return plugin.library == nullptr ? nullptr : plugin.library->native();
}

SPErr getAccessInfo(SPAccessRef access, SPPlatformAccessInfo* info) {
    const Plugin& plugin = accessed(access);
    required(info) = {libraryOf(plugin), plugin.resources, plugin.lastAccessTicks};
    return kNoErr;
}

SPErr getPluginResourceAccess(SPPluginRef ref, SPPlatformAccessRef* library) {
    const Plugin& plugin = host().plugins.at(ref);
    required(library) = plugin.resources == nullptr ? libraryOf(plugin) : plugin.resources;
    return kNoErr;
}

SPErr setPluginResourceAccess(SPPluginRef ref, SPPlatformAccessRef library) {
    host().plugins.at(ref).resources = library;
    return kNoErr;
}

SPErr callPlugin(SPAccessRef access, const char* caller, const char* selector, void* message,
                 SPErr* result) {
    const Plugin& plugin = accessed(access);
    const SPErr answer = plugin.entry(&required(caller), &required(selector), message);
    if (result != nullptr) *result = answer;
    return kNoErr;
}

SPErr getCurrentPlugin(SPPluginRef* plugin) {
    required(plugin) = host().currentPlugin();
    return kNoErr;
}

SPErr setCurrentPlugin(SPPluginRef plugin) {
    if (plugin != nullptr) static_cast<void>(host().plugins.at(plugin));
    host().setCurrentPlugin(plugin);
    return kNoErr;
}

} // namespace

void installSPAccessSuite(SuiteServer& server) {
    auto table = server.table<SPAccessSuite>(kSPAccessSuite, kSPAccessSuiteVersion);
    expose<&SPAccessSuite::AcquirePlugin, acquirePlugin>(table);
    exposeEnding<&SPAccessSuite::ReleasePlugin, releasePlugin>(table);
    expose<&SPAccessSuite::GetPluginAccess, getPluginAccess>(table);
    expose<&SPAccessSuite::GetAccessPlugin, getAccessPlugin>(table);
    expose<&SPAccessSuite::GetAccessEntry, getAccessEntry>(table);
    expose<&SPAccessSuite::GetAccessCount, getAccessCount>(table);
    expose<&SPAccessSuite::GetAccessInfo, getAccessInfo>(table);
    expose<&SPAccessSuite::GetPluginResourceAccess, getPluginResourceAccess>(table);
    expose<&SPAccessSuite::SetPluginResourceAccess, setPluginResourceAccess>(table);
    expose<&SPAccessSuite::CallPlugin, callPlugin>(table);
    expose<&SPAccessSuite::GetCurrentPlugin, getCurrentPlugin>(table);
    expose<&SPAccessSuite::SetCurrentPlugin, setCurrentPlugin>(table);
}

} // namespace easel
