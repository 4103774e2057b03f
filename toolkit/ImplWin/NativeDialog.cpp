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
    {WS_CHILD | WS_CLIPCHILDREN, 0},
    {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW},
};

const StyleRow& styleOf(DialogKind kind) { return kStyles[static_cast<std::size_t>(kind)]; }

bool alwaysShowsCues() {
    BOOL shown = FALSE;
    SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &shown, 0);
    return shown != FALSE;
}

bool held(int key) { return GetKeyState(key) < 0; }

} // namespace

NativeDialog::NativeDialog(Screen& screen, const DialogView& view, DialogEvents& events)
    : HWNDBased(screen), view_(view), events_(events),
      scale_(screen.scaleFor(static_cast<HWND>(view.parent))), tips_(screen),
      keyboardCues_(alwaysShowsCues()) {
    createWindow();
    screen.dialogs.push_back(handle());
}

NativeDialog::~NativeDialog() {
    std::erase(screen().dialogs, handle());
    tips_.close();
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
/// or of the screen.
RECT NativeDialog::windowRect() const {
    RECT rect{0, 0, scale_.toPixels(view_.size.width), scale_.toPixels(view_.size.height)};
    if (inPanel()) return rect;
    const auto& [style, extended] = styleOf(view_.kind);
    AdjustWindowRectEx(&rect, style, FALSE, extended);
    RECT around{};
    const HWND owner = static_cast<HWND>(view_.parent);
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &around, 0);
    const RECT work = around;
    if (owner != nullptr && IsWindowVisible(owner)) GetWindowRect(owner, &around);
    const LONG width = rect.right - rect.left;
    const LONG height = rect.bottom - rect.top;
    const LONG left = std::clamp((around.left + around.right - width) / 2, work.left,
                                 std::max(work.left, work.right - width));
    const LONG top = std::clamp((around.top + around.bottom - height) / 2, work.top,
                                std::max(work.top, work.bottom - height));
    return {left, top, left + width, top + height};
}

std::unique_ptr<ItemPeer> NativeDialog::createItem(const ItemView& view, ItemEvents& events) {
    return makeNativeItem(*this, view, events);
}

void NativeDialog::changed() {
    const RECT area = client();
    const RECT wanted = windowRect();
    SetWindowTextW(handle(), toWide(view_.title).c_str());
    enableAsItIs();
    if (area.right != scale_.toPixels(view_.size.width) ||
        area.bottom != scale_.toPixels(view_.size.height)) {
        changing_ = true;
        SetWindowPos(handle(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                     wanted.bottom - wanted.top,
                     (placed_ ? SWP_NOMOVE : 0U) | SWP_NOZORDER | SWP_NOACTIVATE);
        changing_ = false;
    }
    if (view_.visible != (IsWindowVisible(handle()) != FALSE))
        ShowWindow(handle(), view_.visible ? SW_SHOWNA : SW_HIDE);
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

/// While a modal dialog runs, the toolkit's other windows and the owner take no input.
class NativeDialog::OthersDisabled {
public:
    explicit OthersDisabled(NativeDialog& running)
        : screen_(running.screen()), others_(screen_.dialogs) {
        std::erase(others_, running.handle());
        count(1);
        const HWND owner = GetWindow(running.handle(), GW_OWNER);
        if (owner == nullptr || !IsWindowEnabled(owner)) return;
        owner_ = owner;
        EnableWindow(owner_, FALSE);
    }
    /// The owner is enabled before the dialog goes, or Windows would activate another program.
    ~OthersDisabled() {
        if (owner_ != nullptr) EnableWindow(owner_, TRUE);
        count(-1);
    }
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;

private:
    void count(int change) {
        for (const HWND window : others_) {
            if (std::ranges::find(screen_.dialogs, window) == screen_.dialogs.end()) continue;
            auto& dialog = *dynamic_cast<NativeDialog*>(objectOf(window));
            dialog.modalsAbove_ += change;
            dialog.enableAsItIs();
        }
    }

    Screen& screen_;
    std::vector<HWND> others_; ///< that there were when it began
    HWND owner_ = nullptr;
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

void NativeDialog::rescale(const RECT& suggested) {
    scale_ = screen().scaleFor(handle());
    SetWindowPos(handle(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    for (HWND child = GetWindow(handle(), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
        if (auto* const item = dynamic_cast<NativeItem*>(objectOf(child))) item->rescale();
    repaintAll();
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
        tips_.relay(handle(), message, wide, {GET_X_LPARAM(lengthy), GET_Y_LPARAM(lengthy)});
        break;
    case WM_DPICHANGED:
        rescale(*reinterpret_cast<const RECT*>(lengthy));
        return 0;
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
