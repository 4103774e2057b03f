#pragma once

/// The suites of the art side, each installed into the server's tables by one function. They work
/// on the current document of the session of this process.

namespace easel {

class SuiteServer;

void installArtSuite(SuiteServer& server);
void installArtSetSuite(SuiteServer& server);
void installDictionarySuite(SuiteServer& server);
void installEntrySuite(SuiteServer& server);
void installArraySuite(SuiteServer& server);
void installLayerSuite(SuiteServer& server);
void installPathSuite(SuiteServer& server);
void installPathStyleSuite(SuiteServer& server);
void installGroupSuite(SuiteServer& server);
void installPluginGroupSuite(SuiteServer& server);
void installSymbolSuite(SuiteServer& server);
void installRealMathSuite(SuiteServer& server);
void installTransformArtSuite(SuiteServer& server);
void installHardSoftSuite(SuiteServer& server);
void installHitTestSuite(SuiteServer& server);
void installUndoSuite(SuiteServer& server);

/// All of them.
void installArtSuites(SuiteServer& server);

} // namespace easel
