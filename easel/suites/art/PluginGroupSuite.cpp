#include "host/suites/AIPluginGroupSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

AIArtHandle getPluginArtEditArt(AIArtHandle art) {
    return editArt(session().artOf(art, kPluginArt))->handle();
}

AIArtHandle getPluginArtResultArt(AIArtHandle art) {
    return resultArt(session().artOf(art, kPluginArt))->handle();
}

} // namespace

void installPluginGroupSuite(SuiteServer& server) {
    using S = AIPluginGroupSuite;
    expose<&S::GetPluginArtEditArt, getPluginArtEditArt>(server);
    expose<&S::GetPluginArtResultArt, getPluginArtResultArt>(server);
}

} // namespace easel
