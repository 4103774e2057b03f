#include "easel/suites/art/ArtSuites.h"

#include <initializer_list>

namespace easel {

void installArtSuites(SuiteServer& server) {
    for (const auto install :
         {installArtSuite, installArtSetSuite, installDictionarySuite, installEntrySuite,
          installArraySuite, installLayerSuite, installPathSuite, installPathStyleSuite,
          installGroupSuite, installPluginGroupSuite, installSymbolSuite, installRealMathSuite,
          installHitTestSuite, installTransformArtSuite, installHardSoftSuite, installUndoSuite})
        install(server);
}

} // namespace easel
