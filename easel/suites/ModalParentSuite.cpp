#include "easel/suites/Expose.h"
#include "easel/suites/RuntimeSuites.h"
#include "host/suites/AIModalParentSuite.h"

namespace easel {
namespace {

/// Easel's alerts are recorded, not shown, so that it matters to none of them who owns it.
AIErr removeParent() { return kNoErr; }

} // namespace

void installModalParentSuite(SuiteServer& server) {
    auto table = server.table<AIModalParentSuite>(kAIModalParentSuite, kAIModalParentSuiteVersion);
    expose<&AIModalParentSuite::RemoveParent, removeParent>(table);
}

} // namespace easel
