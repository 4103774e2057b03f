#include "host/suites/SPPluginsSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

const char* getName(SPPluginRef ref) { return host().plugins.at(ref).name.c_str(); }

} // namespace

void installSPPluginsSuite(SuiteServer& server) {
    auto table = server.table<SPPluginsSuite>(kSPPluginsSuite, kSPPluginsSuiteVersion);
    expose<&SPPluginsSuite::GetPluginName, getName>(table);
}

} // namespace easel
