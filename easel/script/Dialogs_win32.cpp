#include "easel/script/Dialogs.h"

#include "easel/core/Text.h"
#include "easel/runtime/Host.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace easel {
namespace {

using facetta::door::Key;
using facetta::door::Modifiers;

constexpr std::wstring_view kToolkitClass =
    L"NRDMStdClass";            // what the names of its classes begin with
constexpr int kArrowWidth = 16; // of the arrows beside a field, in units of the dialog

std::wstring classOf(HWND window) {
    wchar_t name[64];
    return {name, static_cast<std::size_t>(GetClassNameW(window, name, 64))};
}

bool isOfToolkit(HWND window) { return classOf(window).starts_with(kToolkitClass); }

std::string utf8(const std::wstring& text) {
    return utf8FromUtf16(std::u16string(text.begin(), text.end()));
}

std::wstring wide(std::string_view text) {
    const std::u16string units = utf16FromUtf32(utf32FromUtf8(text));
    return {units.begin(), units.end()};
}

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// "&" marks an access key, "&&" is a plain ampersand.
std::wstring withoutMarks(const std::wstring& caption) {
    std::wstring plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && i + 1 < caption.size()) ++i;
        plain += caption[i];
    }
    return plain;
}

RECT clientOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return area;
}

/// The area of `inner` in pixels of `outer`.
RECT areaIn(HWND outer, HWND inner) {
    RECT area = clientOf(inner);
    MapWindowPoints(inner, outer, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

POINT middleOf(const RECT& area) {
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

LPARAM packed(POINT point) { return MAKELPARAM(point.x, point.y); }

/// The first top-level window of this thread that `fits`.
template <typename Fits> HWND topLevelWindow(Fits fits) {
    struct Search {
        Fits& fits;
        HWND found;
    } search{fits, nullptr};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& looking = *reinterpret_cast<Search*>(parameter);
            if (looking.fits(window)) looking.found = window;
            return looking.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// The system's own message, shown where the host could show none: the user reads it and closes it.
/// False when there is none.
bool closeSystemMessage() {
    const HWND message = topLevelWindow([](HWND window) { return classOf(window) == L"#32770"; });
    if (message != nullptr) PostMessageW(message, WM_CLOSE, 0, 0);
    return message != nullptr;
}

/// The user whom a script describes, as far as message loops go. Each step may run into a modal
/// loop: so before it a message is posted, which calls for the next step wherever it is taken from
/// the queue. A step that comes back takes its message back.
class User {
public:
    explicit User(const std::function<bool()>& next) : next_(next) {
        WNDCLASSW description{};
        description.lpfnWndProc = procedure;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = kClass;
        RegisterClassW(&description);
        window_ = CreateWindowExW(0, kClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                  description.hInstance, nullptr);
        SetTimer(window_, 1, kLookMilliseconds, nullptr);
        current = this;
    }
    ~User() {
        current = nullptr;
        DestroyWindow(window_);
        MSG quit; // with which a dialog was closed that would not go
        while (PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    void act() {
        while (step()) {
        }
    }

    /// Serves all that waits in the queue but the call for the next step.
    void pump() {
        const bool outer = !std::exchange(pumping_, true);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                PostQuitMessage(static_cast<int>(message.wParam)); // for the loop around this
                break;
            }
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (!outer) return;
        pumping_ = false;
        if (std::exchange(called_, false)) call();
    }

    static User* current;

private:
    static constexpr wchar_t kClass[] = L"EaselUser";
    static constexpr UINT kNext = WM_APP;
    static constexpr UINT kLookMilliseconds = 10;

    void call() const { PostMessageW(window_, kNext, 0, 0); }
    void takeBack() {
        MSG message;
        while (PeekMessageW(&message, window_, kNext, kNext, PM_REMOVE)) {
        }
    }

    bool step() {
        call();
        const bool more = next_();
        pump();
        takeBack();
        return more;
    }

    /// In a modal loop.
    void stepInLoop() {
        if (closeSystemMessage() || step())
            call();
        else
            endLoop();
    }

    /// Closes the dialog in front, and when that does not help ends all loops.
    void endLoop() {
        Dialog* const dialog = modalDialog();
        if (dialog == nullptr) return; // this loop is ending
        if (++closings_ > kPatience) return PostQuitMessage(0);
        dialog->clickCloseBox();
        call();
    }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
        if (message == WM_TIMER) closeSystemMessage(); // in a loop where no step is called for
        if (message != kNext || current == nullptr)
            return DefWindowProcW(window, message, first, second);
        if (current->pumping_)
            current->called_ = true;
        else
            current->stepInLoop();
        return 0;
    }

    static constexpr int kPatience = 10;

    const std::function<bool()>& next_;
    HWND window_ = nullptr;
    bool pumping_ = false;
    bool called_ = false; ///< the call came while pumping
    int closings_ = 0;
};

User* User::current = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

void serveWhatWaits() {
    if (User::current != nullptr) User::current->pump();
}

void pressButton(HWND window, POINT point) {
    SendMessageW(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(GetAncestor(window, GA_ROOT)),
                 MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, packed(point));
}

/// Whoever has captured the mouse gets what it does from now on.
void sendCaptured(HWND window, UINT message, WPARAM first, POINT point) {
    const HWND capture = GetCapture();
    if (capture != nullptr && capture != window) {
        MapWindowPoints(window, capture, &point, 1);
        window = capture;
    }
    if (IsWindow(window)) SendMessageW(window, message, first, packed(point));
}

/// Between press and release there is time for what waits.
void clickAt(HWND window, POINT point) {
    pressButton(window, point);
    serveWhatWaits();
    if (IsWindow(window)) sendCaptured(window, WM_LBUTTONUP, 0, point);
    serveWhatWaits();
}

/// As the system sends it: the character goes to the window that got the key.
void strike(HWND window, WPARAM key, bool alt) {
    constexpr LPARAM kAltIsDown = 1 << 29;
    const LPARAM flags = alt ? kAltIsDown : 0;
    const UINT character = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_CHAR);
    const bool hasCharacter =
        alt || key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE;
    SendMessageW(window, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, flags);
    if (hasCharacter && IsWindow(window))
        SendMessageW(window, alt ? WM_SYSCHAR : WM_CHAR, character != 0 ? character : key, flags);
    if (IsWindow(window)) SendMessageW(window, alt ? WM_SYSKEYUP : WM_KEYUP, key, flags);
    serveWhatWaits();
}

HWND fieldIn(HWND item) { return FindWindowExW(item, nullptr, L"EDIT", nullptr); }

double scaleOf(HWND window) {
    return GetDpiForWindow(window) / static_cast<double>(USER_DEFAULT_SCREEN_DPI);
}

/// How many columns of arrows stand beside the field.
int arrowColumns(HWND item, HWND field) {
    const double beside = clientOf(item).right - areaIn(item, field).right;
    return static_cast<int>(beside / (kArrowWidth * scaleOf(item)));
}

POINT arrowIn(HWND item, int columnFromRight, int quarterFromTop) {
    const RECT area = clientOf(item);
    const double width = kArrowWidth * scaleOf(item);
    return {static_cast<LONG>(area.right - 1 - width * (columnFromRight + 0.5)),
            area.bottom * quarterFromTop / 4};
}

/// The list that has been opened beside a control.
HWND openList() {
    return topLevelWindow([](HWND window) {
        const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
        return isOfToolkit(window) && IsWindowVisible(window) != FALSE &&
               (style & WS_EX_NOACTIVATE) != 0;
    });
}

std::wstring entryOf(HWND list, int entry) {
    const auto position = static_cast<WPARAM>(entry);
    const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, position, 0);
    if (length < 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(list, LB_GETTEXT, position, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

RECT rowOf(HWND list, int entry) {
    RECT row{};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&row));
    return row;
}

/// The entry's row after the wheel has been turned until it is whole, or the list has ended.
RECT scrolledIntoView(HWND list, int entry) {
    RECT row = rowOf(list, entry);
    for (LONG before = row.top + 1; row.top != before;) {
        before = row.top;
        const int notches = row.top < 0 ? 1 : row.bottom > clientOf(list).bottom ? -1 : 0;
        if (notches != 0)
            SendMessageW(list, WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
        row = rowOf(list, entry);
    }
    return row;
}

/// Clicks on the entry of that text; false when there is none.
bool clickEntry(HWND list, const std::wstring& text) {
    const auto count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    for (int entry = 0; entry < count; ++entry) {
        if (entryOf(list, entry) != text) continue;
        clickAt(list, middleOf(scrolledIntoView(list, entry)));
        return true;
    }
    return false;
}

/// The tip of the window that `area` of `dialog` belongs to.
std::string tipAt(HWND dialog, const RECT& area) {
    std::string tip;
    topLevelWindow([&](HWND tips) {
        if (classOf(tips) != TOOLTIPS_CLASSW) return false;
        const auto count = static_cast<WPARAM>(SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0));
        for (WPARAM i = 0; i < count; ++i) {
            wchar_t text[1024] = L"";
            TOOLINFOW tool{};
            tool.cbSize = TTTOOLINFOW_V2_SIZE;
            SendMessageW(tips, TTM_ENUMTOOLSW, i, reinterpret_cast<LPARAM>(&tool));
            if (tool.hwnd != dialog || EqualRect(&tool.rect, &area) == FALSE) continue;
            tool.lpszText = text;
            SendMessageW(tips, TTM_GETTEXTW, std::size(text), reinterpret_cast<LPARAM>(&tool));
            tip = utf8(text);
            return true;
        }
        return false;
    });
    return tip;
}

SeenItem seen(HWND dialog, HWND item) {
    SeenItem seen;
    const HWND field = fieldIn(item);
    const RECT area = areaIn(dialog, item);
    const RECT whole = clientOf(dialog);
    seen.id = GetDlgCtrlID(item);
    seen.isField = field != nullptr;
    seen.text = utf8(field != nullptr ? textOf(field) : withoutMarks(textOf(item)));
    seen.tip = tipAt(dialog, area);
    seen.enabled = IsWindowEnabled(item) != FALSE;
    seen.shown = IsWindowVisible(item) != FALSE && area.left + area.right >= 0 &&
                 area.top + area.bottom >= 0 && area.left + area.right < 2 * whole.right &&
                 area.top + area.bottom < 2 * whole.bottom;
    seen.focused = GetFocus() == item || (field != nullptr && GetFocus() == field);
    seen.on = classOf(item) == L"Button" && SendMessageW(item, BM_GETCHECK, 0, 0) == BST_CHECKED;
    const bool mayBeSlider = isOfToolkit(item) && field == nullptr;
    if (mayBeSlider &&
        SendMessageW(item, TBM_GETRANGEMAX, 0, 0) != SendMessageW(item, TBM_GETRANGEMIN, 0, 0))
        seen.position = static_cast<double>(SendMessageW(item, TBM_GETPOS, 0, 0));
    return seen;
}

class DialogWindow final : public Dialog {
public:
    explicit DialogWindow(HWND window) : window_(window) {}

    [[nodiscard]] bool isModal() const override {
        return (GetWindowLongW(window_, GWL_STYLE) & WS_CHILD) == 0;
    }

    [[nodiscard]] std::string title() const override { return utf8(textOf(window_)); }
    [[nodiscard]] std::vector<SeenItem> items() const override {
        std::vector<SeenItem> items;
        for (HWND item = GetWindow(window_, GW_CHILD); item != nullptr;
             item = GetWindow(item, GW_HWNDNEXT))
            items.push_back(seen(window_, item));
        std::reverse(items.begin(), items.end()); // the last that was made lies above
        return items;
    }

    void click(int id) override {
        const HWND field = fieldIn(item(id));
        const HWND clicked = field != nullptr ? field : item(id);
        clickAt(clicked, middleOf(clientOf(clicked)));
    }

    bool type(std::string_view text) override {
        constexpr WPARAM kControlA = 1;
        const HWND field = GetFocus();
        if (classOf(field) != L"Edit" || !hasKeyboard()) return false;
        SendMessageW(field, WM_CHAR, kControlA, 0);
        if (text.empty()) SendMessageW(field, WM_KEYDOWN, VK_DELETE, 0);
        for (const wchar_t character : wide(text))
            if (IsWindow(field)) SendMessageW(field, WM_CHAR, character, 0);
        serveWhatWaits();
        return true;
    }

    bool press(Key key, Modifiers modifiers) override {
        if (!isModal() && !hasKeyboard()) return false;
        strike(hasKeyboard() ? GetFocus() : window_, static_cast<WPARAM>(key), modifiers.alt);
        return true;
    }

    /// Whether in large steps the control finds out from the keyboard.
    bool spin(int id, bool up, bool) override {
        const HWND field = fieldIn(item(id));
        const int columns = field != nullptr ? arrowColumns(item(id), field) : 0;
        if (columns == 0) return false;
        clickAt(item(id), arrowIn(item(id), columns - 1, up ? 1 : 3));
        return true;
    }

    bool slide(int id, double value, int moves) override {
        const HWND slider = item(id);
        const auto least = static_cast<double>(SendMessageW(slider, TBM_GETRANGEMIN, 0, 0));
        const auto most = static_cast<double>(SendMessageW(slider, TBM_GETRANGEMAX, 0, 0));
        if (!(most > least)) return false;
        RECT thumb{};
        RECT bar{};
        SendMessageW(slider, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
        SendMessageW(slider, TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(&bar));
        const double part = std::clamp((value - least) / (most - least), 0.0, 1.0);
        const POINT from = middleOf(thumb);
        const LONG to = bar.left + std::lround(part * (bar.right - bar.left));
        pressButton(slider, from);
        for (int move = 1; move <= moves; ++move)
            sendCaptured(slider, WM_MOUSEMOVE, MK_LBUTTON,
                         {from.x + (to - from.x) * move / moves, from.y});
        sendCaptured(slider, WM_LBUTTONUP, 0, {to, from.y});
        serveWhatWaits();
        return true;
    }

    bool choose(int id, std::string_view entry) override {
        const HWND control = item(id);
        const std::wstring text = wide(entry);
        if (SendMessageW(control, LB_GETCOUNT, 0, 0) > 0) return clickEntry(control, text);
        const bool isField = fieldIn(control) != nullptr;
        clickAt(control, isField ? arrowIn(control, 0, 2) : middleOf(clientOf(control)));
        const HWND list = openList();
        if (list == nullptr) return false;
        const bool found = clickEntry(list, text);
        const bool chosen = found && openList() == nullptr;
        if (!chosen)
            strike(GetFocus(), VK_ESCAPE, false); // an entry that cannot be chosen is dimmed
        return chosen;
    }

    void clickCloseBox() override { SendMessageW(window_, WM_SYSCOMMAND, SC_CLOSE, 0); }
    void leave() override {
        if (hasKeyboard()) SetFocus(nullptr);
        serveWhatWaits();
    }

private:
    [[nodiscard]] HWND item(int id) const { return GetDlgItem(window_, id); }
    [[nodiscard]] bool hasKeyboard() const {
        return GetFocus() == window_ || IsChild(window_, GetFocus()) != FALSE;
    }

    HWND window_;
};
/// Where the windows that were found last are kept.
Dialog* found(HWND window, std::unique_ptr<DialogWindow>& place) {
    place = window != nullptr ? std::make_unique<DialogWindow>(window) : nullptr;
    return place.get();
}

} // namespace

Dialog* modalDialog() {
    static std::unique_ptr<DialogWindow> place;
    return found(topLevelWindow([](HWND window) {
                     const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
                     return (style & WS_EX_DLGMODALFRAME) != 0 &&
                            IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE;
                 }),
                 place);
}

Dialog* panelDialog(const Host& host) {
    static std::unique_ptr<DialogWindow> place;
    for (const auto& [ref, panel] : host.panels.all())
        for (HWND child = GetWindow(reinterpret_cast<HWND>(panel->window->client()), GW_CHILD);
             child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
            if (isOfToolkit(child)) return found(child, place);
    return nullptr;
}

void serveUser(const std::function<bool()>& next) { User(next).act(); }

} // namespace easel
