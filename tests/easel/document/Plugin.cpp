#include "tests/easel/document/Plugin.h"

namespace easel::tests {

SuiteServer& server() {
    static const bool installed = (installArtSuites(session().suites), true);
    static_cast<void>(installed);
    return session().suites;
}

} // namespace easel::tests
