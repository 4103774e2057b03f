#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AINotifierSuite.h"

namespace easel {
namespace {

AINotifierHandle addNotifier(SPPluginRef plugin, const char* name, const char* type) {
    static_cast<void>(host().plugins.at(plugin));
    return host().notifiers.add({plugin, &required(name), &required(type)});
}

void notify(const char* type, void* data) { host().notify(&required(type), data); }

} // namespace

void installNotifierSuite(SuiteServer& server) {
    expose<&AINotifierSuite::AddNotifier, addNotifier, OutputMayBeNull>(server);
    expose<&AINotifierSuite::Notify, notify>(server);
}

} // namespace easel
