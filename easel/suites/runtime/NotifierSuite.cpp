#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AINotifierSuite.h"

namespace easel {
namespace {

Notifier& at(AINotifierHandle notifier) { return host().notifiers.at(notifier); }

AIErr addNotifier(SPPluginRef plugin, const char* name, const char* type,
                  AINotifierHandle* notifier) {
    static_cast<void>(host().plugins.at(plugin));
    const AINotifierHandle added = host().notifiers.add({plugin, &required(name), &required(type)});
    if (notifier != nullptr) *notifier = added;
    return kNoErr;
}

AIErr getName(AINotifierHandle notifier, const char** name) {
    required(name) = at(notifier).name.c_str();
    return kNoErr;
}

AIErr getType(AINotifierHandle notifier, const char** type) {
    required(type) = at(notifier).type.c_str();
    return kNoErr;
}

AIErr getActive(AINotifierHandle notifier, AIBoolean* active) {
    required(active) = at(notifier).active ? 1 : 0;
    return kNoErr;
}

AIErr setActive(AINotifierHandle notifier, AIBoolean active) {
    at(notifier).active = active != 0;
    return kNoErr;
}

AIErr getPlugin(AINotifierHandle notifier, SPPluginRef* plugin) {
    required(plugin) = at(notifier).plugin;
    return kNoErr;
}

AIErr count(ai::int32* number) {
    required(number) = host().notifiers.count();
    return kNoErr;
}

AIErr nth(ai::int32 index, AINotifierHandle* notifier) {
    required(notifier) = host().notifiers.nth(index);
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
    expose<&AINotifierSuite::GetNotifierName, getName>(table);
    expose<&AINotifierSuite::GetNotifierType, getType>(table);
    expose<&AINotifierSuite::GetNotifierActive, getActive>(table);
    expose<&AINotifierSuite::SetNotifierActive, setActive>(table);
    expose<&AINotifierSuite::GetNotifierPlugin, getPlugin>(table);
    expose<&AINotifierSuite::CountNotifiers, count>(table);
    expose<&AINotifierSuite::GetNthNotifier, nth>(table);
    expose<&AINotifierSuite::Notify, notify>(table);
}

} // namespace easel
