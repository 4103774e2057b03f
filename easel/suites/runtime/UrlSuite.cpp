#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIURLSuite.h"

namespace easel {
namespace {

bool isBrowserAvailable() { return host().user.browserAvailable; }

} // namespace

void installUrlSuite(SuiteServer& server) {
    auto table = server.table<AIURLSuite>(kAIURLSuite, kAIURLSuiteVersion);
    expose<&AIURLSuite::IsBrowserAvailable, isBrowserAvailable>(table);
}

} // namespace easel
