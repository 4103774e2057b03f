#include "easel/runtime/PanelWindow.h"

#include "easel/core/Text.h"
#include "host/Error.h"
#include "host/Owned.h"

#include <windows.h>

#include <cmath>

namespace easel {
namespace {

constexpr wchar_t kFrameClass[] = L"EaselPanelFrame";
constexpr wchar_t kClientClass[] = L"EaselPanelClient";

// The buttons, from right to left in a strip above the client area.
constexpr int kStripHeight = 18;
constexpr int kButtonWidth = 22;
constexpr WORD kFlyoutButton = 1;
constexpr WORD kStateButton = 2;
constexpr WORD kCloseButton = 3; ///< In a dock, where there is no title bar.

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

struct MenuTraits {
    using Ref = HMENU;
    static void release(Ref menu) noexcept { DestroyMenu(menu); }
};
using Menu = ai::Owned<MenuTraits>;

Menu popupMenu(const std::vector<FlyoutItem>& items) {
    Menu menu(CreatePopupMenu());
    for (const FlyoutItem& item : items) {
        UINT flags = item.isSeparator ? MF_SEPARATOR : MF_STRING;
        if (item.enabled == 0) flags |= MF_GRAYED;
        if (item.mark != AIPanelFlyoutMenuItemMark::None) flags |= MF_CHECKED;
        AppendMenuW(menu.get(), flags, item.id, wide(item.text).c_str());
    }
    return menu;
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

/// A tool window, or a part of the dock, and inside it the client area as a child of its own: the
/// plug-in never gets hold of the frame.
struct PanelWindow::System {
    System(const std::u32string& title, AISize initial, PanelWindowEvents handlers,
           const PanelDock& itsDock)
        : events(std::move(handlers)), dock(itsDock) {
        registerClass(kFrameClass, procedure);
        registerClass(kClientClass, DefWindowProcW);
        const DWORD floating = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
        const DWORD style = isDocked() ? WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS : floating;
        const HINSTANCE program = GetModuleHandleW(nullptr);
        frame = CreateWindowExW(isDocked() ? 0 : WS_EX_TOOLWINDOW, kFrameClass, wide(title).c_str(),
                                style, 0, 0, 0, 0, reinterpret_cast<HWND>(dock.window), nullptr,
                                program, this);
        if (frame == nullptr) throw ai::Error{kOutOfMemoryErr};
        client = CreateWindowExW(0, kClientClass, L"",
                                 WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0,
                                 0, frame, nullptr, program, nullptr);
        if (client == nullptr) {
            DestroyWindow(frame);
            throw ai::Error{kOutOfMemoryErr};
        }
        setSize(initial);
    }

    ~System() {
        events = {}; // what goes on from here is not the user's doing
        DestroyWindow(frame);
    }

    void setSize(AISize wanted) {
        size = wanted;
        const SIZE outer = frameFor(pixels(size));
        SetWindowPos(frame, nullptr, 0, 0, outer.cx, outer.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        fitClient();
        tellDock();
    }

    [[nodiscard]] SIZE frameFor(SIZE area) const {
        RECT outer{0, 0, area.cx, area.cy + stripHeight};
        if (!isDocked())
            AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongPtrW(frame, GWL_STYLE)),
                               FALSE, WS_EX_TOOLWINDOW);
        return {outer.right - outer.left, outer.bottom - outer.top};
    }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
        if (message == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(second);
            SetWindowLongPtrW(window, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
            return DefWindowProcW(window, message, first, second);
        }
        auto* self = reinterpret_cast<System*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (self == nullptr || self->frame == nullptr)
            return DefWindowProcW(window, message, first, second);
        LRESULT answer = 0;
        // What a handler throws must not reach the system; the plug-in has been told, or is gone.
        static_cast<void>(ai::codeOf([&] {
            answer = self->handle(message, first, second);
            return kNoErr;
        }));
        return answer;
    }

    LRESULT handle(UINT message, WPARAM first, LPARAM second) {
        switch (message) {
        case WM_COMMAND:
            if (LOWORD(first) == kStateButton) tell(events.cycled);
            if (LOWORD(first) == kFlyoutButton) tell(events.flyout);
            if (LOWORD(first) == kCloseButton) tell(events.closed);
            return 0;
        case WM_PAINT:
            if (!isDocked()) break;
            paintTitle();
            return 0;
        case WM_CLOSE:
            // The window stays: a panel that is closed can be shown again.
            tell(events.closed);
            return 0;
        default:
            break;
        }
        return DefWindowProcW(frame, message, first, second);
    }

    void fitClient() {
        RECT area{};
        GetClientRect(frame, &area);
        SetWindowPos(client, nullptr, 0, stripHeight, area.right, area.bottom - stripHeight,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        int right = area.right;
        for (const WORD button : {kCloseButton, kFlyoutButton, kStateButton})
            if (const HWND window = GetDlgItem(frame, button))
                SetWindowPos(window, nullptr, right -= kButtonWidth, 0, kButtonWidth, stripHeight,
                             SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void paintTitle() {
        PAINTSTRUCT paint{};
        const HDC dc = BeginPaint(frame, &paint);
        RECT strip{6, 0, 0, stripHeight};
        GetClientRect(frame, &paint.rcPaint);
        strip.right = paint.rcPaint.right;
        wchar_t title[128];
        const int length = GetWindowTextW(frame, title, 128);
        SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetBkMode(dc, TRANSPARENT);
        DrawTextW(dc, title, length, &strip, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
        EndPaint(frame, &paint);
    }

    [[nodiscard]] bool isDocked() const { return dock.window != nullptr; }
    void tellDock() const {
        if (dock.changed) dock.changed();
    }

    void setButton(WORD button, const wchar_t* glyph, bool shown) {
        const HWND window = GetDlgItem(frame, button);
        if (shown == (window != nullptr)) return;
        if (!shown) {
            DestroyWindow(window);
            return;
        }
        const auto id = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(button));
        const HWND made =
            CreateWindowExW(0, L"BUTTON", glyph, WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON | BS_FLAT, 0,
                            0, 0, 0, frame, id, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                     0);
    }

    /// Where the flyout menu hangs from, in screen pixels.
    [[nodiscard]] POINT belowFlyoutButton() const {
        RECT button{};
        GetWindowRect(GetDlgItem(frame, kFlyoutButton), &button);
        return {button.right, button.bottom};
    }

    PanelWindowEvents events;
    const PanelDock& dock;
    HWND frame = nullptr;
    HWND client = nullptr;
    int stripHeight = 0;
    AISize size{};
};
PanelWindow::PanelWindow(const std::u32string& title, AISize size, PanelWindowEvents events,
                         const PanelDock& dock)
    : system_(std::make_unique<System>(title, size, std::move(events), dock)) {}

PanelWindow::~PanelWindow() = default;

AIPanelPlatformWindow PanelWindow::client() const noexcept {
    return reinterpret_cast<AIPanelPlatformWindow>(system_->client);
}

void PanelWindow::setTitle(const std::u32string& title) {
    SetWindowTextW(system_->frame, wide(title).c_str());
}

void PanelWindow::setSize(AISize size) { system_->setSize(size); }

void PanelWindow::setButtons(PanelButtons buttons) {
    system_->setButton(kStateButton, L"\u00B1", buttons.states);
    system_->setButton(kFlyoutButton, L"\u00BB", buttons.flyout);
    system_->setButton(kCloseButton, L"\u00D7", system_->isDocked());
    const bool strip = system_->isDocked() || buttons.states || buttons.flyout;
    system_->stripHeight = strip ? kStripHeight : 0;
    system_->setSize(system_->size);
}

ai::uint32 PanelWindow::popUp(const std::vector<FlyoutItem>& items) {
    const Menu menu = popupMenu(items);
    const POINT at = system_->belowFlyoutButton();
    // The menu goes away on a click elsewhere only when its owner is in front.
    SetForegroundWindow(GetAncestor(system_->frame, GA_ROOT));
    constexpr UINT kOptions = TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTALIGN;
    const BOOL chosen =
        TrackPopupMenu(menu.get(), kOptions, at.x, at.y, 0, system_->frame, nullptr);
    return static_cast<ai::uint32>(chosen);
}

void PanelWindow::show(bool shown) {
    ShowWindow(system_->frame, shown ? SW_SHOWNOACTIVATE : SW_HIDE);
    system_->tellDock();
}

void PanelWindow::move(AIPoint topLeft) {
    if (system_->isDocked()) return;
    SetWindowPos(system_->frame, nullptr, topLeft.h, topLeft.v, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace easel
