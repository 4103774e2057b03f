#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIURLSuite.h"

namespace easel {
namespace {

bool isBrowserAvailable() { return host().user.browserAvailable; }

} // namespace

void installUrlSuite(SuiteServer& server) {
    expose<&AIURLSuite::IsBrowserAvailable, isBrowserAvailable>(server);
}

} // namespace easel
