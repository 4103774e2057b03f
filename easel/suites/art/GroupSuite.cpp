#include "host/suites/AIGroupSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Attributes.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

Art& groupOf(AIArtHandle handle) {
    Art& art = session().artOf(handle);
    if (art.type() != kGroupArt) throw ai::Error{kBadParameterErr};
    return art;
}

AIErr getGroupClipped(AIArtHandle group, AIBoolean* clipped) {
    required(clipped) = groupOf(group).content().clipped ? 1 : 0;
    return kNoErr;
}

AIErr setGroupClipped(AIArtHandle handle, AIBoolean clipped) {
    Art& group = groupOf(handle);
    checkEditable(group);
    group.write().clipped = clipped != 0;
    if (clipped != 0) return kNoErr;
    for (Art* member = group.firstChild(); member != nullptr; member = member->next())
        if (member->has(kArtIsClipMask))
            member->write().attributes &= ~static_cast<std::uint32_t>(kArtIsClipMask);
    return kNoErr;
}

} // namespace

void installGroupSuite(SuiteServer& server) {
    using S = AIGroupSuite;
    auto table = server.table<S>(kAIGroupSuite, kAIGroupSuiteVersion);
    expose<&S::GetGroupClipped, getGroupClipped>(table);
    expose<&S::SetGroupClipped, setGroupClipped>(table);
}

} // namespace easel
