#include "easel/runtime/PanelWindow.h"

#include "easel/core/Text.h"
#include "host/Error.h"

#include <windows.h>

#include <cmath>
#include <system_error>

namespace easel {
namespace {

constexpr wchar_t kFrameClass[] = L"EaselPanelFrame";
constexpr wchar_t kClientClass[] = L"EaselPanelClient";

SIZE pixels(AISize size) { return {std::lround(size.width), std::lround(size.height)}; }

std::wstring wide(const std::u32string& text) {
    const std::u16string units = utf16FromUtf32(text);
    return {units.begin(), units.end()};
}

/// Works on a copy, because the plug-in may destroy the panel, and the window with it, meanwhile.
template <typename Handler, typename... Arguments>
void tell(Handler handler, Arguments... arguments) {
    if (handler) handler(arguments...);
}

void registerClass(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    if (GetClassInfoExW(GetModuleHandleW(nullptr), name, &type) != 0) return;
    type = {};
    type.cbSize = sizeof type;
    type.lpfnWndProc = procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)); // the arrow
    type.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    type.lpszClassName = name;
    if (RegisterClassExW(&type) == 0) throw ai::Error{kOutOfMemoryErr};
}

} // namespace

/// A tool window and, inside it, the client area as a child of its own: the plug-in never gets
/// hold of the frame.
struct PanelWindow::System {
    System(const std::u32string& title, AISize size, bool resizable, PanelWindowEvents handlers);
    ~System() {
        events = {}; // what goes on from here is not the user's doing
        DestroyWindow(frame);
    }
    void setSize(AISize size);
    [[nodiscard]] SIZE frameFor(SIZE client) const;
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    LRESULT handle(UINT message, WPARAM first, LPARAM second);
    void fitClient();

    PanelWindowEvents events;
    HWND frame = nullptr;
    HWND client = nullptr;
    bool settingSize = false; ///< the size changes by our own call, not by the user's mouse
};

PanelWindow::System::System(const std::u32string& title, AISize size, bool resizable,
                            PanelWindowEvents handlers)
    : events(std::move(handlers)) {
    registerClass(kFrameClass, procedure);
    registerClass(kClientClass, DefWindowProcW);
    const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN |
                        (resizable ? WS_THICKFRAME : DWORD{0});
    const HINSTANCE program = GetModuleHandleW(nullptr);
    frame = CreateWindowExW(WS_EX_TOOLWINDOW, kFrameClass, wide(title).c_str(), style, 0, 0, 0, 0,
                            nullptr, nullptr, program, this);
    if (frame == nullptr) throw ai::Error{kOutOfMemoryErr};
    client = CreateWindowExW(0, kClientClass, L"",
                             WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                             frame, nullptr, program, nullptr);
    if (client == nullptr) {
        DestroyWindow(frame);
        throw ai::Error{kOutOfMemoryErr};
    }
    setSize(size);
}

SIZE PanelWindow::System::frameFor(SIZE area) const {
    RECT outer{0, 0, area.cx, area.cy};
    AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongPtrW(frame, GWL_STYLE)), FALSE,
                       WS_EX_TOOLWINDOW);
    return {outer.right - outer.left, outer.bottom - outer.top};
}

void PanelWindow::System::setSize(AISize size) {
    const SIZE outer = frameFor(pixels(size));
    settingSize = true;
    SetWindowPos(frame, nullptr, 0, 0, outer.cx, outer.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    settingSize = false;
    fitClient();
}

void PanelWindow::System::fitClient() {
    RECT area{};
    GetClientRect(frame, &area);
    SetWindowPos(client, nullptr, 0, 0, area.right, area.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK PanelWindow::System::procedure(HWND window, UINT message, WPARAM first,
                                                LPARAM second) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(second);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        return DefWindowProcW(window, message, first, second);
    }
    auto* self = reinterpret_cast<System*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr || self->frame == nullptr)
        return DefWindowProcW(window, message, first, second);
    return self->handle(message, first, second);
}

LRESULT PanelWindow::System::handle(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
    case WM_SIZE:
        fitClient();
        if (!settingSize)
            tell(events.resized,
                 AISize{static_cast<AIReal>(LOWORD(second)), static_cast<AIReal>(HIWORD(second))});
        return 0;
    case WM_CLOSE:
        // The window stays: a panel that is closed can be shown again.
        tell(events.closed);
        return 0;
    default:
        return DefWindowProcW(frame, message, first, second);
    }
}

PanelWindow::PanelWindow(const std::u32string& title, AISize size, bool resizable,
                         PanelWindowEvents events)
    : system_(std::make_unique<System>(title, size, resizable, std::move(events))) {}

PanelWindow::~PanelWindow() = default;

AIPanelPlatformWindow PanelWindow::client() const noexcept {
    return reinterpret_cast<AIPanelPlatformWindow>(system_->client);
}

void PanelWindow::setTitle(const std::u32string& title) {
    SetWindowTextW(system_->frame, wide(title).c_str());
}

void PanelWindow::setSize(AISize size) { system_->setSize(size); }

void PanelWindow::show(bool shown) {
    ShowWindow(system_->frame, shown ? SW_SHOWNOACTIVATE : SW_HIDE);
}

void PanelWindow::move(AIPoint topLeft) {
    SetWindowPos(system_->frame, nullptr, topLeft.h, topLeft.v, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace easel
