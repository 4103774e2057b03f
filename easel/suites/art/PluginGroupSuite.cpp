#include "host/suites/AIPluginGroupSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

Art& pluginGroupOf(AIArtHandle handle) {
    Art& art = session().artOf(handle);
    if (art.type() != kPluginArt) throw ai::Error{kBadParameterErr};
    return art;
}

AIArtHandle getPluginArtEditArt(AIArtHandle art) { return editArt(pluginGroupOf(art))->handle(); }

AIArtHandle getPluginArtResultArt(AIArtHandle art) {
    return resultArt(pluginGroupOf(art))->handle();
}

} // namespace

void installPluginGroupSuite(SuiteServer& server) {
    using S = AIPluginGroupSuite;
    auto table = server.table<S>(kAIPluginGroupSuite, kAIPluginGroupSuiteVersion);
    expose<&S::GetPluginArtEditArt, getPluginArtEditArt>(table);
    expose<&S::GetPluginArtResultArt, getPluginArtResultArt>(table);
}

} // namespace easel
