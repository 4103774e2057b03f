#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AINotifierSuite.h"

namespace easel {
namespace {

AIErr addNotifier(SPPluginRef plugin, const char* name, const char* type,
                  AINotifierHandle* notifier) {
    static_cast<void>(host().plugins.at(plugin));
    const AINotifierHandle added = host().notifiers.add({plugin, &required(name), &required(type)});
    if (notifier != nullptr) *notifier = added;
    return kNoErr;
}

AIErr notify(const char* type, void* data) {
    host().notify(&required(type), data);
    return kNoErr;
}

} // namespace

void installNotifierSuite(SuiteServer& server) {
    auto table = server.table<AINotifierSuite>(kAINotifierSuite, kAINotifierSuiteVersion);
    expose<&AINotifierSuite::AddNotifier, addNotifier>(table);
    expose<&AINotifierSuite::Notify, notify>(table);
}

} // namespace easel
