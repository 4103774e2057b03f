#include "easel/suites/Suites.h"

#include "easel/core/SuiteServer.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {

SuiteServer& installedSuites() {
    static SuiteServer server;
    static const bool installed = [] {
        installRuntimeSuites(server);
        installArtSuites(server);
        return true;
    }();
    static_cast<void>(installed);
    return server;
}

} // namespace easel
