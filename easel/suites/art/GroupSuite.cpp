#include "host/suites/AIGroupSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

bool getGroupClipped(AIArtHandle group) {
    return session().artOf(group, kGroupArt).content().clipped;
}

} // namespace

void installGroupSuite(SuiteServer& server) {
    expose<&AIGroupSuite::GetGroupClipped, getGroupClipped>(server);
}

} // namespace easel
