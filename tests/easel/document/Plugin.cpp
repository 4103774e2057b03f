#include "tests/easel/document/Plugin.h"

namespace easel::tests {

SuiteServer& server() {
    static SuiteServer theServer;
    static const bool installed = (installArtSuites(theServer), true);
    static_cast<void>(installed);
    return theServer;
}

} // namespace easel::tests
