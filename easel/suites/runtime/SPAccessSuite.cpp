#include "host/suites/SPAccessSuite.h"

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
    expose<&SPAccessSuite::AcquirePlugin, acquirePlugin>(server);
    exposeEnding<&SPAccessSuite::ReleasePlugin, releasePlugin>(server);
    expose<&SPAccessSuite::GetPluginResourceAccess, getPluginResourceAccess>(server);
}

} // namespace easel
