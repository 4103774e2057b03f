#include "easel/runtime/PanelWindow.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace {

struct Recorded {
    int closed = 0;
    int cycled = 0;
};

easel::PanelWindowEvents recordIn(Recorded& recorded) {
    return {[&recorded] { ++recorded.closed; }, [&recorded] { ++recorded.cycled; }, {}};
}

const easel::PanelDock kNoDock{};

HWND clientOf(const easel::PanelWindow& window) { return reinterpret_cast<HWND>(window.client()); }

SIZE sizeOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

} // namespace

TEST_CASE("a panel's client area is a child window of just the size asked for") {
    Recorded recorded;
    easel::PanelWindow window(U"Panel", {240, 188}, recordIn(recorded), kNoDock);
    const HWND client = clientOf(window);
    const HWND frame = GetParent(client);
    REQUIRE(frame != nullptr);
    CHECK(sizeOf(client).cx == 240);
    CHECK(sizeOf(client).cy == 188);
    window.setSize({240, 83});
    CHECK(sizeOf(client).cy == 83);
    CHECK(sizeOf(frame).cy == 83);
    CHECK((GetWindowLongPtrW(client, GWL_STYLE) & WS_CLIPCHILDREN) != 0);
    CHECK(IsWindowVisible(client) == FALSE);
    window.show(true);
    CHECK(IsWindowVisible(client) != FALSE);
    window.setTitle(U"\u00C4nderung");
    std::wstring title(32, L'\0');
    title.resize(static_cast<std::size_t>(GetWindowTextW(frame, title.data(), 32)));
    CHECK(title == std::wstring(L"\u00C4nderung"));
    SendMessageW(frame, WM_CLOSE, 0, 0);
    CHECK(recorded.closed == 1);
    CHECK(IsWindow(frame) != FALSE); // it can be shown again
}

TEST_CASE("buttons stand above the client area and take nothing from it") {
    Recorded recorded;
    easel::PanelWindow window(U"Panel", {240, 188}, recordIn(recorded), kNoDock);
    const HWND frame = GetParent(clientOf(window));
    window.setButtons({.states = true, .flyout = true});
    CHECK(sizeOf(clientOf(window)).cy == 188);
    CHECK(sizeOf(frame).cy > 188);
    RECT client{};
    GetWindowRect(clientOf(window), &client);
    for (const int button : {1, 2}) {
        RECT bounds{};
        REQUIRE(GetWindowRect(GetDlgItem(frame, button), &bounds) != 0);
        CHECK(bounds.bottom <= client.top);
        CHECK(bounds.right <= client.right);
        CHECK(bounds.right > bounds.left);
    }
    SendMessageW(GetDlgItem(frame, 2), BM_CLICK, 0, 0);
    CHECK(recorded.cycled == 1);
    window.setButtons({});
    CHECK(sizeOf(frame).cy == 188);
    CHECK(GetDlgItem(frame, 1) == nullptr);
}

TEST_CASE("the flyout menu is chosen from by keyboard; disabled lines cannot be chosen") {
    Recorded recorded;
    easel::PanelWindow window(U"Panel", {240, 188}, recordIn(recorded), kNoDock);
    window.setButtons({.states = false, .flyout = true});
    window.show(true);
    const HWND frame = GetParent(clientOf(window));
    const auto line = [](ai::uint32 id, const std::u32string& text, bool enabled) {
        return easel::FlyoutItem{id, text, text.empty(), enabled ? 1 : 0};
    };
    const std::vector<easel::FlyoutItem> lines{line(1, U"One", true), line(2, U"", true),
                                               line(3, U"Three", true), line(4, U"Four", false)};
    struct Row {
        std::vector<WPARAM> keys;
        ai::uint32 chosen;
    };
    const Row rows[] = {{{VK_DOWN, VK_RETURN}, 1},
                        {{VK_DOWN, VK_DOWN, VK_RETURN}, 3},
                        {{VK_DOWN, VK_ESCAPE}, 0},
                        {{VK_UP, VK_RETURN, VK_ESCAPE}, 0}};
    for (const auto& row : rows) {
        INFO(row.keys.size(), " keys");
        for (const WPARAM key : row.keys)
            PostMessageW(frame, WM_KEYDOWN, key, 0);
        CHECK(window.popUp(lines) == row.chosen);
        MSG left{};
        while (PeekMessageW(&left, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE) != 0) {
        }
    }
}

TEST_CASE("a panel destroyed while it tells of its end does no harm") {
    std::unique_ptr<easel::PanelWindow> window;
    window = std::make_unique<easel::PanelWindow>(
        U"Panel", AISize{100, 100}, easel::PanelWindowEvents{[&window] { window.reset(); }, {}, {}},
        kNoDock);
    const HWND frame = GetParent(clientOf(*window));
    SendMessageW(frame, WM_CLOSE, 0, 0);
    CHECK(window == nullptr);
    CHECK(IsWindow(frame) == FALSE);
}

TEST_CASE("in a dock a panel is a child of the dock, with its title and buttons inside") {
    const HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 300, 400, nullptr,
                                        nullptr, nullptr, nullptr);
    int arranged = 0;
    const easel::PanelDock dock{reinterpret_cast<AIPanelPlatformWindow>(parent),
                                [&arranged] { ++arranged; }};
    Recorded recorded;
    easel::PanelWindow window(U"Panel", {240, 188}, recordIn(recorded), dock);
    window.setButtons({.states = true, .flyout = true});
    const HWND frame = GetParent(clientOf(window));
    CHECK(GetParent(frame) == parent);
    CHECK(sizeOf(clientOf(window)).cx == 240);
    CHECK(sizeOf(clientOf(window)).cy == 188);
    CHECK(sizeOf(frame).cy > 188);
    const int before = arranged;
    window.show(true);
    CHECK(arranged == before + 1);
    const HWND close = FindWindowExW(frame, nullptr, L"BUTTON", L"\u00D7");
    REQUIRE(close != nullptr);
    SendMessageW(close, BM_CLICK, 0, 0);
    CHECK(recorded.closed == 1);
    DestroyWindow(parent);
}
