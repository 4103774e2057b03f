#include "host/suites/AIGroupSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

Art& groupOf(AIArtHandle handle) {
    Art& art = session().artOf(handle);
    if (art.type() != kGroupArt) throw ai::Error{kBadParameterErr};
    return art;
}

bool getGroupClipped(AIArtHandle group) { return groupOf(group).content().clipped; }

} // namespace

void installGroupSuite(SuiteServer& server) {
    using S = AIGroupSuite;
    auto table = server.table<S>(kAIGroupSuite, kAIGroupSuiteVersion);
    expose<&S::GetGroupClipped, getGroupClipped>(table);
}

} // namespace easel
