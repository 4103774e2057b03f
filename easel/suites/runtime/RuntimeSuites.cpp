#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

constexpr void (*kInstallers[])(SuiteServer&) = {
    installSPBasicSuite,
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
    installUserSuite,
};

} // namespace

void installRuntimeSuites(SuiteServer& server) {
    for (const auto install : kInstallers)
        install(server);
}

} // namespace easel
