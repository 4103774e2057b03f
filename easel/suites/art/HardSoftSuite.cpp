#include "host/suites/AIHardSoftSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/HardSoft.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

// Source and destination may be one point.

AIRealPoint pointHarden(AIRealPoint* source) {
    return harden(session().document(), required(source));
}

AIRealPoint pointSoften(AIRealPoint* source) {
    return soften(session().document(), required(source));
}

} // namespace

void installHardSoftSuite(SuiteServer& server) {
    using S = AIHardSoftSuite;
    auto table = server.table<S>(kAIHardSoftSuite, kAIHardSoftSuiteVersion);
    expose<&S::AIRealPointHarden, pointHarden>(table);
    expose<&S::AIRealPointSoften, pointSoften>(table);
}

} // namespace easel
