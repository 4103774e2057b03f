#include "host/suites/SPAccessSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

Plugin& accessed(SPAccessRef access) {
    Plugins& plugins = host().plugins;
    const SPPluginRef found = plugins.findIf(
        [&](const Plugin& plugin) { return access != nullptr && plugin.access == access; });
    if (found == nullptr) throw ai::Error{kSPBadParameterError};
    return plugins.at(found);
}

SPAccessRef acquirePlugin(SPPluginRef ref) {
    host().plugins.load(host().sender, ref, kAccessAtRunTime);
    Plugin& plugin = host().plugins.at(ref);
    ++plugin.accessCount;
    session().ledger.lend(Lent::PluginAccess, plugin.access);
    return plugin.access;
}

void releasePlugin(SPAccessRef access) {
    Plugin& plugin = accessed(access);
    if (plugin.accessCount == 0) throw ai::Error{kSPPluginAlreadyReleasedError};
    --plugin.accessCount;
    session().ledger.takeBack(Lent::PluginAccess, access);
}

SPPlatformAccessRef getPluginResourceAccess(SPPluginRef ref) {
    const Plugin& plugin = host().plugins.at(ref);
    return plugin.library == nullptr ? nullptr : plugin.library->native();
}

} // namespace

void installSPAccessSuite(SuiteServer& server) {
    auto table = server.table<SPAccessSuite>(kSPAccessSuite, kSPAccessSuiteVersion);
    expose<&SPAccessSuite::AcquirePlugin, acquirePlugin>(table);
    exposeEnding<&SPAccessSuite::ReleasePlugin, releasePlugin>(table);
    expose<&SPAccessSuite::GetPluginResourceAccess, getPluginResourceAccess>(table);
}

} // namespace easel
