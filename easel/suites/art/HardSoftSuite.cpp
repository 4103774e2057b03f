#include "host/suites/AIHardSoftSuite.h"

#include "easel/core/Expose.h"
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
    expose<&S::AIRealPointHarden, pointHarden>(server);
    expose<&S::AIRealPointSoften, pointSoften>(server);
}

} // namespace easel
