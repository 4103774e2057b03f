#include "toolkit/ImplCommon/System.h"

#include <windows.h>

namespace NRDM {
namespace {

Bounds boundsOf(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

} // namespace

Bounds screenAt(Place place) {
    MONITORINFO screen{};
    screen.cbSize = sizeof(screen);
    GetMonitorInfoW(MonitorFromPoint({place.x, place.y}, MONITOR_DEFAULTTONEAREST), &screen);
    return boundsOf(screen.rcMonitor);
}

Bounds workspaceBounds() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return boundsOf(area);
}

Place pointer() {
    POINT at{};
    GetCursorPos(&at);
    return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

} // namespace NRDM
