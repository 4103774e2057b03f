#include "toolkit/ImplWin/NativeDialog.h"

#include "toolkit/ImplWin/CoADMDrawer.h"
#include "toolkit/ImplWin/NativeItem.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

struct StyleRow {
    DWORD style;
    DWORD extended;
};

/// In the order of `DialogKind`.
constexpr StyleRow kStyles[] = {
    {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_DLGMODALFRAME},
    {WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0},
    {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW},
};

const StyleRow& styleOf(DialogKind kind) { return kStyles[static_cast<std::size_t>(kind)]; }

bool alwaysShowsCues() {
    BOOL shown = FALSE;
    SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &shown, 0);
    return shown != FALSE;
}

/// WM_DPICHANGED_AFTERPARENT, which only newer systems send: to the children of a window that has
/// got another scale.
constexpr UINT kDpiChangedAfterParent = 0x02E3;

bool held(int key) { return GetKeyState(key) < 0; }

/// What the system keeps free of the display that `window` is on, or of the main one.
RECT workAreaOf(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, window != nullptr ? MONITOR_DEFAULTTONEAREST
                                                                : MONITOR_DEFAULTTOPRIMARY),
                    &monitor);
    return monitor.rcWork;
}

bool canHaveKeyboard(HWND window) {
    return window != nullptr && IsWindowVisible(window) != FALSE &&
           IsWindowEnabled(window) != FALSE &&
           IsWindowEnabled(GetAncestor(window, GA_ROOT)) != FALSE;
}

} // namespace

POINT centredWithin(const RECT& around, const RECT& work, SIZE size) {
    return {std::clamp((around.left + around.right - size.cx) / 2, work.left,
                       std::max(work.left, work.right - size.cx)),
            std::clamp((around.top + around.bottom - size.cy) / 2, work.top,
                       std::max(work.top, work.bottom - size.cy))};
}

NativeDialog::NativeDialog(Screen& screen, const DialogView& view, DialogEvents& events)
    : HWNDBased(screen), view_(view), events_(events),
      scale_(screen.scaleFor(static_cast<HWND>(view.parent))), tips_(*this),
      keyboardCues_(alwaysShowsCues()) {
    createWindow();
    screen.dialogs.push_back(this);
}

NativeDialog::~NativeDialog() { close(); }

void NativeDialog::close() noexcept {
    std::erase(screen().dialogs, this);
    tips_.close();
    if (std::exchange(running_, false)) // its loop may be waiting for the next message
        PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
    destroy();
}

void NativeDialog::createWindow() {
    const auto& [style, extended] = styleOf(view_.kind);
    const std::wstring title = toWide(view_.title);
    Plan plan;
    plan.title = title.c_str();
    plan.style = style | (view_.enabled ? 0U : WS_DISABLED);
    plan.extendedStyle = extended;
    plan.place = windowRect();
    plan.parent = static_cast<HWND>(view_.parent);
    create(plan);
    if (view_.visible) ShowWindow(handle(), SW_SHOWNA);
    placed_ = inPanel() || view_.visible;
}

/// A panel fills the corner of its host's window; anything else stands in the middle of its owner,
/// or of the display, and whole on the display that its owner is on.
RECT NativeDialog::windowRect() const {
    RECT rect{0, 0, scale_.toPixels(view_.size.width), scale_.toPixels(view_.size.height)};
    if (inPanel()) return rect;
    const auto& [style, extended] = styleOf(view_.kind);
    const HWND owner = static_cast<HWND>(view_.parent);
    rect = withFrame(rect, style, extended, handle() != nullptr ? handle() : owner);
    const RECT work = workAreaOf(owner);
    RECT around = work;
    if (owner != nullptr && IsWindowVisible(owner)) GetWindowRect(owner, &around);
    const LONG width = rect.right - rect.left;
    const LONG height = rect.bottom - rect.top;
    const auto [left, top] = centredWithin(around, work, {width, height});
    return {left, top, left + width, top + height};
}

std::unique_ptr<ItemPeer> NativeDialog::createItem(const ItemView& view, ItemEvents& events) {
    return makeNativeItem(*this, view, events);
}

void NativeDialog::resizeTo(const RECT& place, UINT flags) {
    changing_ = true;
    SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, flags | SWP_NOZORDER | SWP_NOACTIVATE);
    changing_ = false;
}

void NativeDialog::changed() {
    followScale();
    const RECT area = client();
    const RECT wanted = windowRect();
    SetWindowTextW(handle(), toWide(view_.title).c_str());
    enableAsItIs();
    if (area.right != scale_.toPixels(view_.size.width) ||
        area.bottom != scale_.toPixels(view_.size.height))
        resizeTo(wanted, placed_ ? SWP_NOMOVE : 0U);
    const bool shown = (GetWindowLongW(handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (view_.visible != shown) ShowWindow(handle(), view_.visible ? SW_SHOWNA : SW_HIDE);
    placed_ = placed_ || view_.visible;
}

void NativeDialog::invalidate(const Bounds& area) {
    const RECT pixels = scale_.toPixels(RECT{area.left, area.top, area.right, area.bottom});
    RedrawWindow(handle(), &pixels, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void NativeDialog::repaintAll() const {
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void NativeDialog::update() {
    RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void NativeDialog::activate() {
    if (inPanel())
        SetFocus(focused_ != nullptr ? focused_ : handle());
    else
        SetActiveWindow(handle());
}

void NativeDialog::startTimer(int timer, int milliseconds) {
    SetTimer(handle(), static_cast<UINT_PTR>(timer), static_cast<UINT>(milliseconds), nullptr);
}

void NativeDialog::stopTimer(int timer) { KillTimer(handle(), static_cast<UINT_PTR>(timer)); }

Place NativeDialog::screenCorner() const {
    POINT corner{0, 0};
    ClientToScreen(handle(), &corner);
    return {static_cast<int>(corner.x), static_cast<int>(corner.y)};
}

void NativeDialog::moveTo(Place corner) {
    const Place now = screenCorner();
    RECT place{};
    GetWindowRect(handle(), &place);
    SetWindowPos(handle(), nullptr, place.left + corner.x - now.x, place.top + corner.y - now.y, 0,
                 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    placed_ = true;
}

/// While a modal dialog runs, no other window of the thread takes input: the host's own panels and
/// frames as little as the toolkit's.
class NativeDialog::OthersDisabled {
public:
    explicit OthersDisabled(const NativeDialog& running) : running_(running.handle()) {
        for (NativeDialog* const other : running.screen().dialogs)
            if (other != &running) dialogs_.push_back({other, other->watch()});
        count(1);
        EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
    }
    ~OthersDisabled() {
        for (const HWND window : windows_)
            EnableWindow(window, TRUE);
        count(-1);
    }
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;

private:
    struct Other {
        NativeDialog* dialog;
        std::weak_ptr<const char> alive;
    };

    void count(int change) {
        for (const auto& [dialog, alive] : dialogs_) {
            if (alive.expired()) continue;
            dialog->modalsAbove_ += change;
            dialog->enableAsItIs();
        }
    }

    /// What was disabled already is somebody else's to enable.
    static BOOL CALLBACK disable(HWND window, LPARAM parameter) {
        auto& self = *reinterpret_cast<OthersDisabled*>(parameter);
        const bool own = window == self.running_ || GetWindow(window, GW_OWNER) == self.running_;
        if (own || IsWindowEnabled(window) == FALSE) return TRUE;
        self.windows_.push_back(window);
        EnableWindow(window, FALSE);
        return TRUE;
    }

    HWND running_;
    std::vector<Other> dialogs_; ///< the toolkit's, which may be enabled and disabled meanwhile
    std::vector<HWND> windows_;
};

void NativeDialog::enableAsItIs() { EnableWindow(handle(), view_.enabled && modalsAbove_ == 0); }

void NativeDialog::runModal() {
    failure_ = nullptr;
    {
        const OthersDisabled disabled(*this);
        running_ = true;
        placed_ = true;
        ShowWindow(handle(), SW_SHOW);
        SetActiveWindow(handle());
        MSG message;
        while (running_ && handle() != nullptr) {
            if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
                PostQuitMessage(static_cast<int>(message.wParam)); // for the loop around this one
                break;
            }
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        running_ = false;
    }
    ShowWindow(handle(), SW_HIDE);
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

bool NativeDialog::endModal() {
    if (!running_) return false;
    running_ = false;
    PostMessageW(handle(), WM_NULL, 0, 0); // wakes the loop when it is not in a message of its own
    return true;
}

void NativeDialog::failed() noexcept {
    if (!running_) {
        HWNDBased::failed();
        return;
    }
    if (!failure_) failure_ = std::current_exception();
    endModal();
}

void NativeDialog::showKeyboardCues() {
    if (std::exchange(keyboardCues_, true)) return;
    repaintAll();
}

bool NativeDialog::dialogKey(UINT message, WPARAM wide) {
    if (message == WM_SYSKEYDOWN) {
        if (wide == VK_MENU) showKeyboardCues();
        return false; // Alt+F4 and the like are Windows' own
    }
    if (message == WM_CHAR) return wide == VK_TAB || wide == VK_RETURN || wide == VK_ESCAPE;
    if (message == WM_SYSCHAR) {
        const auto letter = static_cast<wchar_t>(reinterpret_cast<std::uintptr_t>(
            CharUpperW(reinterpret_cast<LPWSTR>(static_cast<std::uintptr_t>(wide & 0xFFFFU)))));
        return events_.key(DialogKey::Access, letter);
    }
    switch (wide) {
    case VK_TAB:
        if (held(VK_CONTROL)) return false;
        showKeyboardCues();
        return events_.key(held(VK_SHIFT) ? DialogKey::BackTab : DialogKey::Tab, 0);
    case VK_RETURN:
        return events_.key(DialogKey::Enter, 0);
    case VK_ESCAPE:
        return events_.key(DialogKey::Escape, 0);
    case VK_LEFT:
    case VK_UP:
        showKeyboardCues();
        return events_.key(DialogKey::Previous, 0);
    case VK_RIGHT:
    case VK_DOWN:
        showKeyboardCues();
        return events_.key(DialogKey::Next, 0);
    default:
        return false;
    }
}

bool NativeDialog::reflect(HWND control, UINT message, WPARAM wide, LPARAM lengthy,
                           LRESULT& answer) {
    auto* const item = dynamic_cast<NativeItem*>(objectOf(control));
    return item != nullptr && item->notified(message, wide, lengthy, answer);
}

void NativeDialog::followScale() {
    const Scale now = screen().scaleFor(handle());
    if (now == scale_) return;
    scale_ = now;
    tips_.close();
    for (HWND child = GetWindow(handle(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
        if (auto* const item = dynamic_cast<NativeItem*>(objectOf(child))) item->rescale();
    repaintAll();
}

bool NativeDialog::holds(HWND window) const {
    return window == handle() || IsChild(handle(), window) != FALSE;
}

/// The windows that the panel lies in are its host's frame, not what the user works in.
void NativeDialog::focusCame(HWND other) {
    const bool frame = IsChild(other, handle()) != FALSE;
    if (inPanel() && !frame && !holds(other)) lender_ = other;
}

/// The host's shortcuts and tools go by the keyboard: it stays in a panel only while it is typed
/// in.
void NativeDialog::returnKeyboard() {
    if (!inPanel() || !holds(GetFocus())) return;
    SetFocus(canHaveKeyboard(lender_) ? lender_ : static_cast<HWND>(view_.keyboardOwner));
}

LRESULT NativeDialog::serve(UINT message, WPARAM wide, LPARAM lengthy) {
    LRESULT answer = 0;
    switch (message) {
    case WM_COMMAND:
        if (lengthy != 0 &&
            reflect(reinterpret_cast<HWND>(lengthy), message, wide, lengthy, answer))
            return answer;
        break;
    case WM_DRAWITEM: {
        const auto& request = *reinterpret_cast<const DRAWITEMSTRUCT*>(lengthy);
        if (request.CtlType == ODT_BUTTON &&
            reflect(request.hwndItem, message, wide, lengthy, answer))
            return answer;
        break;
    }
    case WM_CLOSE:
        events_.closeRequested();
        return 0;
    case WM_SIZE:
        if (!changing_)
            events_.resized({scale_.toUnits(LOWORD(lengthy)), scale_.toUnits(HIWORD(lengthy))});
        return 0;
    case WM_TIMER:
        events_.timerFired(static_cast<int>(wide));
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(wide) == WA_INACTIVE) {
            const HWND focus = GetFocus();
            if (IsChild(handle(), focus)) focused_ = focus;
        } else if (focused_ != nullptr && IsChild(handle(), focused_)) {
            SetFocus(focused_);
        }
        return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
    case WM_CHAR:
        if (dialogKey(message, wide)) return 0;
        break;
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS;
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
        tips_.relay(message, wide, {GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)});
        break;
    case WM_SETFOCUS:
        focusCame(reinterpret_cast<HWND>(wide));
        break;
    case WM_MOUSEACTIVATE: // from any window in it; the frame is about to take the focus
        focusCame(GetFocus());
        break;
    case WM_DPICHANGED:
        changing_ = true; // the frame changes as well
        followScale();
        resizeTo(*reinterpret_cast<const RECT*>(lengthy), 0);
        return 0;
    case kDpiChangedAfterParent:
        changed();
        return 0;
    case WM_DESTROY: // by its parent's end: the tips would go without a word
        tips_.close();
        break;
    default:
        break;
    }
    return HWNDBased::serve(message, wide, lengthy);
}

void NativeDialog::paint(const Canvas& canvas, const RECT&) {
    CoADMDrawer drawer(screen(), canvas.surface, canvas.scale, inPanel());
    events_.draw(drawer);
}

} // namespace NRDM
