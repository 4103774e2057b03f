#pragma once

/// The suites of the runtime, each installed into the server's tables by one function. They work
/// on the host of the session of this process (`RunningHost.h`).

namespace easel {

class SuiteServer;

using SuiteInstaller = void(SuiteServer& server);

SuiteInstaller installSPBasicSuite, installSPAccessSuite, installSPPluginsSuite,
    installAnnotatorDrawerSuite, installAnnotatorSuite, installContextSuite, installCursorSnapSuite,
    installDocumentListSuite, installDocumentSuite, installDocumentViewSuite, installFilePathSuite,
    installMenuSuite, installModalParentSuite, installNotifierSuite, installPanelFlyoutMenuSuite,
    installPanelSuite, installPreferenceSuite, installRuntimeSuite, installThemeSuite,
    installTimerSuite, installToolSuite, installToolboxSuite, installUnicodeStringSuite,
    installUrlSuite, installUserSuite;

/// All of them.
void installRuntimeSuites(SuiteServer& server);

} // namespace easel
