#include "easel/runtime/Host.h"
#include "easel/suites/DocumentSuites.h"
#include "easel/suites/RuntimeSuites.h"
#include "easel/suites/SuiteServer.h"

namespace easel {
namespace {

constexpr void (*kInstallers[])(SuiteServer&) = {
    installSPBasicSuite,
    installSPAccessSuite,
    installSPPluginsSuite,
    installSPBlocksSuite,
    installSPInterfaceSuite,
    installAnnotatorDrawerSuite,
    installAnnotatorSuite,
    installBlockSuite,
    installContextSuite,
    installCursorSnapSuite,
    installDocumentListSuite,
    installDocumentSuite,
    installDocumentViewSuite,
    installFilePathSuite,
    installFoldersSuite,
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

SuiteServer& suiteServer() {
    static SuiteServer server;
    static const bool installed = [] {
        for (const auto install : kInstallers)
            install(server);
        installDocumentSuites(server);
        return true;
    }();
    static_cast<void>(installed);
    return server;
}

} // namespace easel
