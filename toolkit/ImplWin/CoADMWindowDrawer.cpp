#include "toolkit/ImplWin/CoADMWindowDrawer.h"

namespace NRDM {
namespace {

RECT clientOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return area;
}

struct WindowDc {
    explicit WindowDc(HWND owner) : window(owner), dc(GetDC(owner)) {}
    ~WindowDc() { ReleaseDC(window, dc); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    HWND window;
    HDC dc;
};

} // namespace

CoADMWindowDrawer::CoADMWindowDrawer(Screen& screen, HWND window, bool inPanel)
    : window_(window), area_(clientOf(window)), surface_({area_.right, area_.bottom}),
      drawer_(screen, surface_, screen.scaleFor(window), inPanel) {
    // It begins with what the window shows.
    if (!surface_) return;
    const WindowDc source(window_);
    BitBlt(surface_.dc(), 0, 0, area_.right, area_.bottom, source.dc, 0, 0, SRCCOPY);
}

CoADMWindowDrawer::~CoADMWindowDrawer() {
    const WindowDc target(window_);
    surface_.copyTo(target.dc, area_);
}

} // namespace NRDM
