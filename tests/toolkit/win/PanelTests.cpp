/// Panels in a host that does with their windows what its interface leaves open.

#include "tests/toolkit/win/OddHost.h"

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplWin/NativeDialog.h"
#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/SuiteTables.h"

#include <doctest/doctest.h>

#include <array>
#include <cmath>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

constexpr int kButton = 4;
constexpr int kNumber = 9;
constexpr int kSlider = 18;

/// What the panel's client was told: "4", or "4 without context".
Log heard; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

void hear(ADMItemRef item, ADMNotifierRef notifier) {
    kItemSuite.DefaultNotify(item, notifier);
    if (kNotifierSuite.IsNotifierType(notifier, kADMUserChangedNotifier) != 0)
        heard.push_back(std::to_string(kItemSuite.GetID(item)));
}
void hearDialog(ADMDialogRef dialog, ADMNotifierRef notifier) {
    kDialogSuite.DefaultNotify(dialog, notifier);
    if (kNotifierSuite.GetItem(notifier) != nullptr) return;
    heard.emplace_back(OddHost::hasContext() ? "panel" : "panel without context");
}

ADMItemRef add(ADMDialogRef dialog, int id, const char* type, int top) {
    const ADMRect place{10, top, 110, top + 22};
    ADMItemRef item = kDialogSuite.CreateItem(dialog, id, type, &place, nullptr, nullptr, 0);
    kItemSuite.SetNotifyProc(item, hear);
    return item;
}

ADMErr fill(ADMDialogRef dialog) {
    kItemSuite.SetText(add(dialog, kButton, kADMTextPushButtonType, 10), "Update");
    ADMItemRef number = add(dialog, kNumber, kADMSpinEditType, 40);
    kItemSuite.SetMinFloatValue(number, 1);
    kItemSuite.SetMaxFloatValue(number, 72);
    kItemSuite.SetFloatValue(number, 3);
    add(dialog, kSlider, kADMSliderType, 70);
    kDialogSuite.SetNotifyProc(dialog, hearDialog);
    heard.clear();
    return 0;
}

HWND windowOf(ADMDialogRef dialog, int id) {
    return static_cast<HWND>(kItemSuite.GetWindowRef(kDialogSuite.GetItem(dialog, id)));
}
HWND fieldOf(ADMDialogRef dialog) {
    return FindWindowExW(windowOf(dialog, kNumber), nullptr, L"EDIT", nullptr);
}

/// The panel on the screen, the keyboard in the document.
struct Shown {
    OddHost host;
    ADMDialogRef panel = host.panel(fill);
    LONG clickedAt = 5;

    Shown() { host.restore(); }

    [[nodiscard]] float number() const {
        return kItemSuite.GetFloatValue(kDialogSuite.GetItem(panel, kNumber));
    }
    void type(const std::wstring& text) {
        clickedAt = clickedAt == 5 ? 25 : 5; // or it would be a double click
        host.click(fieldOf(panel), {clickedAt, 5});
        kItemSuite.SelectAll(kDialogSuite.GetItem(panel, kNumber));
        host.type(text);
    }
};

Log take() { return std::exchange(heard, {}); }

} // namespace

TEST_CASE("a panel that its host shows by itself is not blank, and has the colours of panels") {
    const Shown shown;
    CHECK(IsWindowVisible(shown.host.child()) != FALSE);
    CHECK(IsWindowVisible(windowOf(shown.panel, kButton)) != FALSE);
    CHECK(pixelOf(shown.host.child(), {3, 3}) == RGB(153, 204, 255));
}

TEST_CASE("a panel whose window the host has made anew is filled again when the host calls") {
    struct Row {
        const char* call;
        void (*tell)(OddHost&);
        Log told;
    };
    const Row rows[] = {
        {"visibility", [](OddHost& host) { host.tellVisibility(); }, {}},
        {"size", [](OddHost& host) { host.tellSize(); }, {}},
        {"state", [](OddHost& host) { host.tellState(2); }, {"panel"}},
        {"menu", [](OddHost& host) { host.openMenu(); }, {}},
    };
    for (const Row& row : rows) {
        INFO(std::string(row.call));
        Shown shown;
        shown.type(L"5");
        shown.host.key(VK_RETURN);
        kItemSuite.SetTipString(kDialogSuite.GetItem(shown.panel, kButton), "What it does");
        CHECK(take() == Log{"9"});
        shown.host.remakeWindow();
        CHECK(shown.host.child() == nullptr);
        row.tell(shown.host);
        shown.host.pump();
        CHECK(take() == row.told);
        REQUIRE(shown.host.child() != nullptr);
        CHECK(IsWindowVisible(windowOf(shown.panel, kButton)) != FALSE);
        CHECK(shown.number() == 5);
        shown.type(L"7");
        shown.host.key(VK_RETURN);
        shown.host.clickMiddle(windowOf(shown.panel, kButton));
        CHECK(shown.number() == 7);
        CHECK(take() == Log{"9", "4"});
    }
}

TEST_CASE("a panel stays as it is while its host cannot tell where it lies") {
    Shown shown;
    const HWND before = shown.host.child();
    for (const bool tells : {false, true}) {
        OddHost::tellWindow(tells);
        shown.host.tellVisibility();
        CHECK(shown.host.child() == before);
        CHECK(IsWindowVisible(windowOf(shown.panel, kButton)) != FALSE);
    }
}

TEST_CASE("windows of ours that somebody hooks into go on working, and end whole") {
    Shown shown;
    shown.host.hookWindows();
    shown.host.clickMiddle(windowOf(shown.panel, kButton));
    shown.type(L"12");
    shown.host.key(VK_RETURN);
    CHECK(take() == Log{"4", "9"});
    CHECK(shown.number() == 12);
    // A modal loop goes through all dialogs.
    ADMDialogRef modal =
        kDialogSuite.Create(nullptr, "Modal", 0, kADMModalDialogStyle, nullptr, nullptr, 0);
    soon([&] { modal->closeRequested(); });
    kDialogSuite.DisplayAsModal(modal);
    kDialogSuite.Destroy(modal);
    const HWND button = windowOf(shown.panel, kButton);
    kDialogSuite.Destroy(shown.panel);
    CHECK(IsWindow(button) == FALSE);
}

TEST_CASE("everything may end while a modal dialog runs") {
    for (const int depth : {1, 2}) {
        CAPTURE(depth);
        Shown shown;
        const auto modal = [&](const auto& act) {
            soon(act);
            CHECK(shown.host.toolkit->dialogs().modal({.name = "Modal"}) == 0);
        };
        const auto end = [&] {
            CHECK(IsWindowEnabled(shown.host.main.window) == FALSE);
            shown.host.end();
        };
        if (depth == 1)
            modal(end);
        else
            modal([&] { modal(end); });
        CHECK(IsWindowEnabled(shown.host.main.window) != FALSE);
        CHECK(shown.host.client() == nullptr);
        CHECK_FALSE(OddHost::hasContext());
    }
}

TEST_CASE("a panel gives the keyboard back to the document once it is done with it") {
    Shown shown;
    OddHost& host = shown.host;
    REQUIRE(GetFocus() == host.document);
    struct Row {
        const char* what;
        std::function<void()> act;
        float number;
        Log told;
    };
    const Row rows[] = {
        {"Enter", [&] { host.key(VK_RETURN); }, 12, {"9"}},
        {"Escape", [&] { host.key(VK_ESCAPE); }, 3, {}},
        {"a button", [&] { host.clickMiddle(windowOf(shown.panel, kButton)); }, 12, {"9", "4"}},
        {"a drag of the slider",
         [&] {
             host.press(windowOf(shown.panel, kSlider), {6, 11});
             host.move(windowOf(shown.panel, kSlider), {50, 11});
             host.release();
         },
         12,
         {"9", "18"}},
    };
    for (const Row& row : rows) {
        INFO(std::string(row.what));
        kItemSuite.SetFloatValue(kDialogSuite.GetItem(shown.panel, kNumber), 3);
        shown.type(L"12");
        CHECK(GetFocus() == fieldOf(shown.panel));
        row.act();
        CHECK(GetFocus() == host.document);
        CHECK(shown.number() == row.number);
        CHECK(take() == row.told);
    }
    ShowWindow(host.document, SW_HIDE); // closed, perhaps: then it is the main window's
    SetFocus(host.main.window);
    shown.type(L"4");
    host.key(VK_RETURN);
    CHECK(GetFocus() == host.main.window);
}

TEST_CASE("a number refused in a panel brings the last one back and not the keyboard") {
    Shown shown;
    shown.type(L"99");
    SUBCASE("when the user goes on to the document") {
        SetFocus(shown.host.document);
        shown.host.pump(20);
        CHECK(GetFocus() == shown.host.document);
    }
    SUBCASE("by Enter, which leaves it to be typed again") {
        shown.host.key(VK_RETURN);
        CHECK(GetFocus() == fieldOf(shown.panel));
    }
    std::array<wchar_t, 16> text{};
    GetWindowTextW(fieldOf(shown.panel), text.data(), static_cast<int>(text.size()));
    CHECK(std::wstring(text.data()) == L"3");
    CHECK(shown.number() == 3);
    CHECK(take().empty());
}

TEST_CASE("a modal dialog leaves no other window of the thread to the user") {
    Shown shown;
    struct TopLevel {
        HWND window;
        explicit TopLevel(DWORD style)
            : window(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | style, 0, 0, 50, 50, nullptr,
                                     nullptr, nullptr, nullptr)) {}
        ~TopLevel() { DestroyWindow(window); }
        [[nodiscard]] bool isEnabled() const { return IsWindowEnabled(window) != FALSE; }
    };
    const TopLevel another(WS_VISIBLE);
    const TopLevel disabled(WS_VISIBLE | WS_DISABLED);
    CoADMDialog& dialog = *shown.host.toolkit->dialogs().create({.name = "Modal"});
    soon([&] {
        CHECK_FALSE(another.isEnabled());
        CHECK(IsWindowEnabled(shown.host.main.window) == FALSE);
        CHECK(IsWindowEnabled(GetAncestor(shown.host.client(), GA_ROOT)) == FALSE);
        CHECK(IsWindowEnabled(static_cast<HWND>(dialog.peer()->window())) != FALSE);
        dialog.closeRequested();
    });
    dialog.run();
    CHECK(another.isEnabled());
    CHECK_FALSE(disabled.isEnabled());
    CHECK(IsWindowEnabled(shown.host.main.window) != FALSE);
    CHECK(IsWindowEnabled(GetAncestor(shown.host.client(), GA_ROOT)) != FALSE);
}

TEST_CASE("a panel follows when its display gets another scale") {
    Shown shown;
    kItemSuite.SetTipString(kDialogSuite.GetItem(shown.panel, kButton), "What it does");
    const auto size = [](HWND window) {
        RECT area{};
        GetClientRect(window, &area);
        return SIZE{area.right, area.bottom};
    };
    const auto scaleTo = [&](double factor) {
        WinPeers::current().screen().fixedScale = Scale{factor};
        constexpr UINT kDpiChangedAfterParent = 0x02E3;
        SendMessageW(shown.host.child(), kDpiChangedAfterParent, 0, 0);
        shown.host.pump();
    };
    const SIZE before = size(shown.host.child());
    const SIZE button = size(windowOf(shown.panel, kButton));
    const HWND tips = tipOf(GetAncestor(shown.host.child(), GA_ROOT));
    CHECK(tips != nullptr);
    scaleTo(2);
    CHECK(size(shown.host.child()).cx == 2 * before.cx);
    CHECK(size(windowOf(shown.panel, kButton)).cy == 2 * button.cy);
    CHECK(tipOf(GetAncestor(shown.host.child(), GA_ROOT)) != tips); // in another font
    CHECK(take().empty());                                          // in units nothing has changed
    scaleTo(1);
    CHECK(size(shown.host.child()).cx == before.cx);
}

TEST_CASE("a dialog stands whole on the display that its owner is on") {
    struct Row {
        const char* where;
        RECT around;
        RECT work;
        POINT corner;
    };
    constexpr RECT kSecond{1920, -200, 3200, 824};
    const Row rows[] = {
        {"in the middle", {2000, 0, 2800, 600}, kSecond, {2300, 250}},
        {"over the left edge", {1700, 0, 2000, 600}, kSecond, {1920, 250}},
        {"below the taskbar", {2000, 700, 2800, 1000}, kSecond, {2300, 724}},
        {"larger than the display", {0, 0, 100, 100}, {10, 20, 100, 60}, {10, 20}},
    };
    for (const Row& row : rows) {
        INFO(std::string(row.where));
        const POINT corner = centredWithin(row.around, row.work, {200, 100});
        CHECK(corner.x == row.corner.x);
        CHECK(corner.y == row.corner.y);
    }
}
