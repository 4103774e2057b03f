#include "easel/window/NativeWindow.h"

#include "easel/core/Text.h"
#include "easel/session/DrawingSession.h"

#include <utility>

namespace easel::window {

NativeWindow::~NativeWindow() { destroy(); }

void NativeWindow::create(const WindowPlan& plan) {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    const HINSTANCE program = GetModuleHandleW(nullptr);
    if (GetClassInfoExW(program, plan.className, &type) == 0) {
        type.style = CS_DBLCLKS;
        type.lpfnWndProc = procedure;
        type.hInstance = program;
        type.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)); // the arrow
        type.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
        type.lpszClassName = plan.className;
        RegisterClassExW(&type);
    }
    const bool isChild = (plan.style & WS_CHILD) != 0;
    const int place = isChild ? 0 : CW_USEDEFAULT;
    if (CreateWindowExW(0, plan.className, plan.title, plan.style, place, place, plan.width,
                        plan.height, plan.parent, plan.menu, program, this) == nullptr)
        throw SessionError("the system has no window to give; is there a display?");
}

void NativeWindow::destroy() {
    if (handle_ != nullptr) DestroyWindow(std::exchange(handle_, nullptr));
}

LRESULT CALLBACK NativeWindow::procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_NCCREATE) {
        auto* const made = static_cast<NativeWindow*>(
            reinterpret_cast<const CREATESTRUCTW*>(second)->lpCreateParams);
        made->handle_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* const self = reinterpret_cast<NativeWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr || self->handle_ == nullptr)
        return DefWindowProcW(window, message, first, second);
    try {
        return self->handleMessage(message, first, second);
    } catch (...) { // what can go wrong is told where it is done
        return DefWindowProcW(window, message, first, second);
    }
}

SIZE NativeWindow::size() const {
    RECT area{};
    GetClientRect(handle_, &area);
    return {area.right, area.bottom};
}

void NativeWindow::place(const RECT& area) const { placeWindow(handle_, area); }

HWND makeControl(const wchar_t* className, const wchar_t* text, DWORD style, HWND parent, int id) {
    const HWND made = CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                                      parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                      GetModuleHandleW(nullptr), nullptr);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    return made;
}

void placeWindow(HWND window, const RECT& area) {
    // While windows are placed one by one they lie over each other, and pixels that are carried
    // along may be a neighbour's.
    SetWindowPos(window, nullptr, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

std::wstring wide(std::string_view text) {
    const std::u16string units = utf16FromUtf32(utf32FromUtf8(text));
    return {units.begin(), units.end()};
}

std::string utf8(std::wstring_view text) {
    return utf8FromUtf16(std::u16string(text.begin(), text.end()));
}

} // namespace easel::window
