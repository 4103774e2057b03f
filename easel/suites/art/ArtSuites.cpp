#include "easel/suites/art/ArtSuites.h"

namespace easel {

void installArtSuites(SuiteServer& server) {
    const auto install = [&](auto... suites) { (suites(server), ...); };
    install(installArtSuite, installArtSetSuite, installDictionarySuite, installEntrySuite,
            installLayerSuite, installPathSuite, installPathStyleSuite, installGroupSuite,
            installPluginGroupSuite, installSymbolSuite, installRealMathSuite, installHitTestSuite,
            installTransformArtSuite, installHardSoftSuite, installUndoSuite);
}

} // namespace easel
