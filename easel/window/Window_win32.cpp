#include "easel/window/Window.h"

#include "easel/window/Frame.h"

#include <windows.h>

#include <objidl.h>

#include <commctrl.h>
#include <gdiplus.h>

namespace easel::window {
namespace {

/// Keeps GDI+ running while there is a window: starting it takes longer than a picture of the
/// canvas.
class Running {
public:
    Running() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~Running() { Gdiplus::GdiplusShutdown(token_); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    ULONG_PTR token_ = 0;
};

} // namespace

std::vector<std::string> openWindow(Session& session, const WindowOptions& options) {
    const Running running;
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    Frame frame(session, options);
    return frame.run();
}

} // namespace easel::window
