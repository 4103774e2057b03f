#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIToolboxSuite.h"

namespace easel {
namespace {

AIToolType getCurrentToolType() { return host().tools.currentNumber(); }

} // namespace

void installToolboxSuite(SuiteServer& server) {
    expose<&AIToolboxSuite::GetCurrentToolType, getCurrentToolType>(server);
}

} // namespace easel
