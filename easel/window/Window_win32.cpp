#include "easel/window/Window.h"

#include "easel/paint/RunningGdiplus.h"
#include "easel/window/Frame.h"

#include <commctrl.h>

namespace easel::window {

std::vector<std::string> openWindow(Session& session, const WindowOptions& options) {
    const paint::RunningGdiplus gdiplus;
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    Frame frame(session, options);
    return frame.run();
}

} // namespace easel::window
