#include "host/suites/SPInterfaceSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

/// A message of any kind: all begin with the same member.
struct AnyMessage {
    SPMessageData& d;
};

SPErr sendMessage(SPPluginRef plugin, const char* caller, const char* selector, void* message,
                  SPErr* result) {
    AnyMessage any{required(static_cast<SPMessageData*>(message))};
    const SPErr answer = host().send(plugin, &required(caller), &required(selector), any);
    if (result != nullptr) *result = answer;
    return kNoErr;
}

SPErr setupMessageData(SPPluginRef plugin, SPMessageData* data) {
    host().fillMessage(plugin, required(data));
    return kNoErr;
}

SPErr emptyMessageData(SPPluginRef plugin, SPMessageData* data) {
    host().plugins.at(plugin).globals = required(data).globals;
    return kNoErr;
}

} // namespace

void installSPInterfaceSuite(SuiteServer& server) {
    auto table = server.table<SPInterfaceSuite>(kSPInterfaceSuite, kSPInterfaceSuiteVersion);
    expose<&SPInterfaceSuite::SendMessage, sendMessage>(table);
    expose<&SPInterfaceSuite::SetupMessageData, setupMessageData>(table);
    expose<&SPInterfaceSuite::EmptyMessageData, emptyMessageData>(table);
}

} // namespace easel
