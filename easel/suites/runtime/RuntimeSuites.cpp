#include "easel/suites/runtime/RuntimeSuites.h"

#include <initializer_list>

namespace easel {

void installRuntimeSuites(SuiteServer& server) {
    for (const auto install : {installSPBasicSuite,
                               installSPAccessSuite,
                               installSPPluginsSuite,
                               installAnnotatorDrawerSuite,
                               installAnnotatorSuite,
                               installContextSuite,
                               installCursorSnapSuite,
                               installDocumentListSuite,
                               installDocumentSuite,
                               installDocumentViewSuite,
                               installFilePathSuite,
                               installMenuSuite,
                               installModalParentSuite,
                               installNotifierSuite,
                               installPanelFlyoutMenuSuite,
                               installPanelSuite,
                               installPreferenceSuite,
                               installRuntimeSuite,
                               installThemeSuite,
                               installTimerSuite,
                               installToolSuite,
                               installToolboxSuite,
                               installUnicodeStringSuite,
                               installUrlSuite,
                               installUserSuite})
        install(server);
}

} // namespace easel
