#include "toolkit/ImplWin/WinPeers.h"

#include "toolkit/ImplCommon/Resources.h"

namespace NRDM {
namespace {

/// The plug-in's own pictures; none while the host does not say where its library is.
PictureSource picturesOfPlugin(SPPluginRef plugin) {
    return picturesOf(reinterpret_cast<HMODULE>(resourceLibrary(plugin)));
}

} // namespace

std::unique_ptr<Peers> systemPeers(const Surroundings& surroundings) {
    auto peers =
        std::make_unique<WinPeers>(surroundings.theme, picturesOfPlugin(surroundings.plugin));
    peers->screen().failed = surroundings.fail;
    return peers;
}

} // namespace NRDM
