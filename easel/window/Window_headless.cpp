#include "easel/window/Window.h"

#include "easel/session/DrawingSession.h"

namespace easel::window {

std::vector<std::string> openWindow(Session&, const WindowOptions&) {
    throw SessionError("there are windows in the Windows build only; scripts/open starts it");
}

} // namespace easel::window
