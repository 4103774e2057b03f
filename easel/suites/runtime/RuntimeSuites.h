#pragma once

/// The suites of the runtime, each installed into the server's tables by one function. They work
/// on the host of the session of this process (`RunningHost.h`).

namespace easel {

class SuiteServer;

void installSPBasicSuite(SuiteServer& server);
void installSPAccessSuite(SuiteServer& server);
void installSPPluginsSuite(SuiteServer& server);
void installAnnotatorDrawerSuite(SuiteServer& server);
void installAnnotatorSuite(SuiteServer& server);
void installContextSuite(SuiteServer& server);
void installCursorSnapSuite(SuiteServer& server);
void installDocumentListSuite(SuiteServer& server);
void installDocumentSuite(SuiteServer& server);
void installDocumentViewSuite(SuiteServer& server);
void installFilePathSuite(SuiteServer& server);
void installMenuSuite(SuiteServer& server);
void installModalParentSuite(SuiteServer& server);
void installNotifierSuite(SuiteServer& server);
void installPanelFlyoutMenuSuite(SuiteServer& server);
void installPanelSuite(SuiteServer& server);
void installPreferenceSuite(SuiteServer& server);
void installRuntimeSuite(SuiteServer& server);
void installThemeSuite(SuiteServer& server);
void installTimerSuite(SuiteServer& server);
void installToolSuite(SuiteServer& server);
void installToolboxSuite(SuiteServer& server);
void installUnicodeStringSuite(SuiteServer& server);
void installUrlSuite(SuiteServer& server);
void installUserSuite(SuiteServer& server);

/// All of them.
void installRuntimeSuites(SuiteServer& server);

} // namespace easel
