#include "toolkit/ImplWin/NRDMUserType.h"

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <windowsx.h>

namespace NRDM {
namespace {

/// ADM's numbers: what happened, and what was held down.
struct ActionRow {
    UINT message;
    int action;
};
constexpr ActionRow kActions[] = {
    {WM_LBUTTONDOWN, 2}, {WM_MBUTTONDOWN, 3}, {WM_RBUTTONDOWN, 4},   {WM_LBUTTONUP, -2},
    {WM_MBUTTONUP, -3},  {WM_RBUTTONUP, -4},  {WM_LBUTTONDBLCLK, 2},
};
constexpr int kMovedDown = 1;
constexpr int kMovedUp = -1;
constexpr int kLeft = -11;

struct ModifierRow {
    WPARAM held;
    unsigned modifier;
};
constexpr ModifierRow kModifiers[] = {
    {MK_LBUTTON, 0x4}, {MK_MBUTTON, 0x8}, {MK_RBUTTON, 0x10}, {MK_SHIFT, 0x20}, {MK_CONTROL, 0x40},
};
constexpr unsigned kAlt = 0x80;
constexpr unsigned kDoubleClick = 0x800;

int actionOf(UINT message, WPARAM wide) {
    if (message == WM_MOUSELEAVE) return kLeft;
    if (message == WM_MOUSEMOVE) return (wide & MK_LBUTTON) != 0 ? kMovedDown : kMovedUp;
    for (const auto& [known, action] : kActions)
        if (known == message) return action;
    return 0;
}

unsigned modifiersOf(UINT message, WPARAM wide) {
    unsigned modifiers = message == WM_LBUTTONDBLCLK ? kDoubleClick : 0;
    for (const auto& [held, modifier] : kModifiers)
        if ((wide & held) != 0) modifiers |= modifier;
    if (GetKeyState(VK_MENU) < 0) modifiers |= kAlt;
    return modifiers;
}

} // namespace

NRDMUserType::NRDMUserType(NativeDialog& dialog, const ItemView& view, ItemEvents& events)
    : NativeItem(dialog, view, events) {
    createItem(nullptr, 0);
}

LRESULT NRDMUserType::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    const LRESULT answer = NativeItem::serve(message, wide, lengthy);
    const int action = actionOf(message, wide);
    if (action == 0) return answer;
    if (message == WM_LBUTTONDOWN) SetCapture(handle());
    if (message == WM_LBUTTONUP && GetCapture() == handle()) ReleaseCapture();
    const Scale unit = scale();
    const bool placed = message != WM_MOUSELEAVE;
    const Place place =
        placed ? Place{unit.toUnits(GET_X_LPARAM(lengthy)), unit.toUnits(GET_Y_LPARAM(lengthy))}
               : Place{};
    events().track({action, placed ? modifiersOf(message, wide) : 0, place});
    return answer;
}

void NRDMUserType::paint(const Canvas& canvas, const RECT&) {
    CoADMDrawer drawer(screen(), canvas.surface, canvas.scale, dialog().inPanel());
    events().draw(drawer);
}

} // namespace NRDM
