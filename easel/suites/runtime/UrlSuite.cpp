#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIURLSuite.h"

namespace easel {
namespace {

AIBoolean isBrowserAvailable() { return host().user.browserAvailable ? 1 : 0; }

} // namespace

void installUrlSuite(SuiteServer& server) {
    auto table = server.table<AIURLSuite>(kAIURLSuite, kAIURLSuiteVersion);
    expose<&AIURLSuite::IsBrowserAvailable, isBrowserAvailable>(table);
}

} // namespace easel
