#include "host/suites/SPPluginsSuite.h"

#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

const char* getName(SPPluginRef ref) { return host().plugins.at(ref).name.c_str(); }

} // namespace

void installSPPluginsSuite(SuiteServer& server) {
    expose<&SPPluginsSuite::GetPluginName, getName>(server);
}

} // namespace easel
