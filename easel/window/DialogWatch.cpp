#include "easel/window/DialogWatch.h"

#include "easel/window/Keys.h"
#include "easel/window/NativeWindow.h"

#include <windows.h>

#include <commctrl.h>

#include <cwctype>
#include <utility>

namespace easel::window {
namespace {

/// What the names of the window classes of plug-ins' dialogs and their items begin with.
constexpr std::wstring_view kDialogClass = L"NRDMStdClass";

std::wstring classOf(HWND window) {
    wchar_t name[64] = {};
    return {name, static_cast<std::size_t>(GetClassNameW(window, name, 64))};
}

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

HWND editIn(HWND item) { return FindWindowExW(item, nullptr, L"EDIT", nullptr); }

bool isModal(HWND window) {
    return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME) != 0;
}

struct KeyRow {
    WPARAM key;
    const char* name;
};
constexpr KeyRow kKeys[] = {
    {VK_RETURN, "enter"},  {VK_TAB, "tab"},        {VK_ESCAPE, "escape"}, {VK_SPACE, "space"},
    {VK_UP, "up"},         {VK_DOWN, "down"},      {VK_LEFT, "left"},     {VK_RIGHT, "right"},
    {VK_PRIOR, "page-up"}, {VK_NEXT, "page-down"}, {VK_HOME, "home"},     {VK_END, "end"},
};

} // namespace

DialogWatch* DialogWatch::current = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

DialogWatch::DialogWatch(Hand& hand) : hand_(hand) {
    current = this;
    hook_ = SetWindowsHookExW(WH_GETMESSAGE, hook, nullptr, GetCurrentThreadId());
}

DialogWatch::~DialogWatch() {
    UnhookWindowsHookEx(hook_);
    current = nullptr;
}

LRESULT CALLBACK DialogWatch::hook(int code, WPARAM first, LPARAM second) {
    if (code == HC_ACTION && first == PM_REMOVE && current != nullptr) {
        try {
            current->see(*reinterpret_cast<const MSG*>(second));
        } catch (...) { // without memory there is no line; what the user does goes on
        }
    }
    return CallNextHookEx(nullptr, code, first, second);
}

DialogWatch::Item DialogWatch::itemOf(HWND window) const {
    for (HWND up = window; up != nullptr; up = GetAncestor(up, GA_PARENT)) {
        const HWND dialog = GetAncestor(up, GA_PARENT);
        if (!classOf(dialog).starts_with(kDialogClass)) continue;
        const bool modal = isModal(dialog);
        bool inPanel = false;
        for (const auto& [ref, panel] : hand_.player.bareHost().panels.all())
            inPanel =
                inPanel || GetParent(dialog) == reinterpret_cast<HWND>(panel->window->client());
        if (modal || inPanel) return {dialog, up, GetDlgCtrlID(up), inPanel};
    }
    return {};
}

void DialogWatch::note(const Item& item, const std::string& deed) {
    hand_.script.note((item.inPanel ? "panel " : "dialog ") + deed);
}

void DialogWatch::see(const MSG& message) {
    const bool mouse = message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK;
    followField();
    keepOutcome();
    if (mouse) {
        pressed_ = itemOf(message.hwnd);
        if (message.hwnd != GetFocus()) leaveField("");
        if (pressed_.window == nullptr) return;
        pressedText_ = textOf(pressed_.window);
        pressedPosition_ = SendMessageW(pressed_.window, TBM_GETPOS, 0, 0);
    } else if (message.message == WM_LBUTTONUP && pressed_.window != nullptr) {
        const Item item = itemOf(message.hwnd);
        RECT area{};
        GetWindowRect(pressed_.window, &area);
        const bool inside = PtInRect(&area, message.pt) != FALSE;
        if (item.window == pressed_.window && inside && classOf(item.window) == L"Button")
            note(item, "click " + std::to_string(item.id));
    } else if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) {
        seeKey(message);
    } else if (message.message == WM_NCLBUTTONDOWN && message.wParam == HTCLOSE &&
               isModal(message.hwnd) && classOf(message.hwnd).starts_with(kDialogClass)) {
        hand_.script.note("dialog close");
    }
}

void DialogWatch::seeKey(const MSG& message) {
    const Item item = itemOf(message.hwnd);
    const bool alt = message.message == WM_SYSKEYDOWN;
    if (item.window == nullptr &&
        !(isModal(message.hwnd) && classOf(message.hwnd).starts_with(kDialogClass)))
        return;
    const Item place = item.window != nullptr ? item : Item{message.hwnd, nullptr, 0, false};
    const bool inField = classOf(message.hwnd) == L"Edit";
    if (alt) {
        leaveField("");
        if (message.wParam >= 'A' && message.wParam <= 'Z')
            note(place, std::string("key ") +
                            static_cast<char>(std::towlower(static_cast<wint_t>(message.wParam))) +
                            " with alt");
        return;
    }
    for (const KeyRow& row : kKeys) {
        if (row.key != message.wParam) continue;
        const bool ends = row.key == VK_RETURN || row.key == VK_TAB || row.key == VK_ESCAPE;
        if (inField && !ends) break; // moves the caret, or counts
        if (inField && typed_ && row.key != VK_ESCAPE) return leaveField(row.name);
        typed_ = false;
        note(place, std::string("key ") + row.name + (isDown(VK_SHIFT) ? " with shift" : ""));
        return;
    }
    const bool counts = message.wParam == VK_UP || message.wParam == VK_DOWN;
    if (inField && !counts) typed_ = true;
}

/// What the field that has the keyboard holds now, if it is not being typed.
void DialogWatch::followField() {
    const HWND focus = GetFocus();
    Item now = classOf(focus) == L"Edit" ? itemOf(focus) : Item{};
    if (now.window != field_.window) {
        field_ = now;
        typed_ = false;
        settling_ = true;
    }
    if (field_.window == nullptr || typed_) return;
    std::wstring text = textOf(editIn(field_.window));
    if (!std::exchange(settling_, false) && text != before_)
        note(field_,
             "type " + std::to_string(field_.id) + ' ' + script::quoted(utf8(text)) + " then tab");
    before_ = std::move(text);
}

/// The keyboard goes somewhere else, by a key if `then` names one.
void DialogWatch::leaveField(const char* then) {
    if (field_.window == nullptr || !typed_) return;
    const std::wstring text = textOf(editIn(field_.window));
    const std::string ending = *then != 0 ? std::string(" then ") + then : std::string();
    note(field_, "type " + std::to_string(field_.id) + ' ' + script::quoted(utf8(text)) + ending);
    typed_ = false;
    settling_ = true;
}

void DialogWatch::keepOutcome() {
    if (pressed_.window == nullptr || !IsWindow(pressed_.window) || isDown(VK_LBUTTON)) return;
    if (editIn(pressed_.window) != nullptr || classOf(pressed_.window) == L"Button") return;
    const LRESULT position = SendMessageW(pressed_.window, TBM_GETPOS, 0, 0);
    const std::wstring text = textOf(pressed_.window);
    const std::string id = std::to_string(pressed_.id);
    if (std::exchange(pressedPosition_, position) != position)
        note(pressed_, "slide " + id + ' ' + std::to_string(position));
    else if (std::exchange(pressedText_, text) != text)
        note(pressed_, "choose " + id + ' ' + script::quoted(utf8(text)));
}

} // namespace easel::window
