#include "toolkit/ImplWin/WinPeers.h"

#include "toolkit/ImplCommon/Resources.h"
#include "toolkit/ImplCommon/SystemCursors.h"

namespace NRDM {
std::unique_ptr<Peers> systemPeers(const Surroundings& surroundings) {
    const SPPlatformAccessRef library = resourceLibrary(surroundings.plugin);
    auto peers = std::make_unique<WinPeers>(surroundings.themes,
                                            picturesOf(reinterpret_cast<HMODULE>(library)));
    peers->screen().cursorOf = [library, cursors = std::make_shared<SystemCursors>()](int id) {
        return static_cast<HCURSOR>(cursors->find(library, id));
    };
    peers->screen().failed = surroundings.fail;
    return peers;
}

} // namespace NRDM
