#include "easel/suites/Suites.h"

#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {

Session& sessionWithSuites() {
    static const bool installed = [] {
        installRuntimeSuites(session().suites);
        installArtSuites(session().suites);
        return true;
    }();
    static_cast<void>(installed);
    return session();
}

} // namespace easel
