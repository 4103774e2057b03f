#include "easel/core/Expose.h"
#include "easel/core/HostPath.h"
#include "easel/core/HostString.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIRuntimeSuite.h"

namespace easel {
namespace {

/// The generation of hosts that Easel stands in for.
constexpr ai::int32 kGeneration = 16;

AIErr getApplicationFile(ai::FilePath& path) {
    writePath(path, programFolder() / "easel");
    return kNoErr;
}

AIErr getApplicationName(ai::UnicodeString& name) {
    writeUtf8(name, "Easel");
    return kNoErr;
}

/// Nobody in particular, so that what a session does is the same for everybody.
AIErr getNobody(ai::UnicodeString& name) {
    writeString(name, {});
    return kNoErr;
}

AIBoolean no() { return 0; }
ai::int32 majorVersion() { return kGeneration; }
ai::int32 zero() { return 0; }

} // namespace

void installRuntimeSuite(SuiteServer& server) {
    auto table = server.table<AIRuntimeSuite>(kAIRuntimeSuite, kAIRuntimeSuiteVersion);
    expose<&AIRuntimeSuite::GetAppFileSpecification, getApplicationFile>(table);
    expose<&AIRuntimeSuite::GetIsSystemMacOSX, no>(table);
    expose<&AIRuntimeSuite::GetAppMajorVersion, majorVersion>(table);
    expose<&AIRuntimeSuite::GetAppMinorVersion, zero>(table);
    expose<&AIRuntimeSuite::GetAppRevisionVersion, zero>(table);
    expose<&AIRuntimeSuite::GetAppNameUS, getApplicationName>(table);
    expose<&AIRuntimeSuite::GetUserNameUS, getNobody>(table);
    expose<&AIRuntimeSuite::GetUserOrganizationUS, getNobody>(table);
    expose<&AIRuntimeSuite::GetIsProductTryAndDie, no>(table);
}

} // namespace easel
