#pragma once

/// The suites of the art side, each installed into the server's tables by one function. They work
/// on the current document of the session of this process.

namespace easel {

class SuiteServer;

using SuiteInstaller = void(SuiteServer& server);

SuiteInstaller installArtSuite, installArtSetSuite, installDictionarySuite, installEntrySuite,
    installLayerSuite, installPathSuite, installPathStyleSuite, installGroupSuite,
    installPluginGroupSuite, installSymbolSuite, installRealMathSuite, installTransformArtSuite,
    installHardSoftSuite, installHitTestSuite, installUndoSuite;

/// All of them.
void installArtSuites(SuiteServer& server);

} // namespace easel
