#include "easel/core/Expose.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIRuntimeSuite.h"

namespace easel {
namespace {

/// The generation of hosts that Easel stands in for.
constexpr ai::int32 kGeneration = 16;

ai::int32 majorVersion() { return kGeneration; }

} // namespace

void installRuntimeSuite(SuiteServer& server) {
    expose<&AIRuntimeSuite::GetAppMajorVersion, majorVersion>(server);
}

} // namespace easel
