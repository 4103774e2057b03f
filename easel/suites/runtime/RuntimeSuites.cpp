#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {

void installRuntimeSuites(SuiteServer& server) {
    const auto install = [&](auto... suites) { (suites(server), ...); };
    install(installSPBasicSuite, installSPAccessSuite, installSPPluginsSuite,
            installAnnotatorDrawerSuite, installAnnotatorSuite, installContextSuite,
            installCursorSnapSuite, installDocumentListSuite, installDocumentSuite,
            installDocumentViewSuite, installFilePathSuite, installMenuSuite,
            installModalParentSuite, installNotifierSuite, installPanelFlyoutMenuSuite,
            installPanelSuite, installPreferenceSuite, installRuntimeSuite, installThemeSuite,
            installTimerSuite, installToolSuite, installToolboxSuite, installUnicodeStringSuite,
            installUrlSuite, installUserSuite);
}

} // namespace easel
