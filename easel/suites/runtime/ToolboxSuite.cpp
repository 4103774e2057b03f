#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIToolboxSuite.h"

namespace easel {
namespace {

AIToolType getCurrentToolType() { return host().tools.currentNumber(); }

} // namespace

void installToolboxSuite(SuiteServer& server) {
    auto table = server.table<AIToolboxSuite>(kAIToolboxSuite, kAIToolboxSuiteVersion);
    expose<&AIToolboxSuite::GetCurrentToolType, getCurrentToolType>(table);
}

} // namespace easel
