/// What dialogs cost: objects of the system that they leave behind, the time they take to open, and
/// how much is painted when little changes. The dialogs are the model's, in a host, as the
/// plug-in's are.

#include "tests/easel/runtime/TestPlugin.h"
#include "tests/toolkit/win/Census.h"

#include "easel/suites/Suites.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Resources.h"
#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/ImplWin/WindowClass.h"

#include <array>
#include <optional>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

constexpr int kFlyoutMenu = 701;

/// A plug-in that a host has started, with dialogs of its own whose resources are this program's.
class HostedDialogs {
public:
    HostedDialogs() {
        plugin_.on("SP Interface/Startup", [this](SPMessageData& message) {
            ai::basicSuite = message.basic;
            dialogs_.emplace(themes_, makePeers, this);
            return kNoErr;
        });
        plugin_.on("SP Interface/Shutdown", [this](SPMessageData&) {
            dialogs_.reset();
            ai::basicSuite = nullptr;
            return kNoErr;
        });
        host_.start();
    }
    ~HostedDialogs() { host_.quit(); }
    HostedDialogs(const HostedDialogs&) = delete;
    HostedDialogs& operator=(const HostedDialogs&) = delete;

    /// Runs `work` inside a message of the host.
    template <typename Work> void run(Work work) {
        REQUIRE(plugin_.run([&] { work(*dialogs_); }) == kNoErr);
    }

    [[nodiscard]] DialogRequest request(ADMDialogStyle style, int resource) const {
        return {.plugin = plugin_.self(), .name = "Facetta", .resource = resource, .style = style};
    }

    void showPanel() { host_.showPanel(host_.panels.named(U"Facetta"), true); }

private:
    static std::unique_ptr<Peers> makePeers(void* self) {
        return std::make_unique<WinPeers>(static_cast<HostedDialogs*>(self)->themes_,
                                          picturesOf(WindowClass::library()));
    }

    easel::Host host_{easel::sessionWithSuites()};
    facetta::tests::TestPlugin plugin_{host_};
    Themes themes_;
    std::optional<Dialogs> dialogs_;
};

/// A layout of as many items as asked for, of every kind in turn, in rows of five.
layout::Layout layoutOfItems(int count) {
    constexpr std::array kKinds = {
        R"(button(name: "&Apply", item_id: )",
        R"(checkbox(name: "Snap", item_id: )",
        R"(radio_button(name: "Every layer", item_id: )",
        R"(static_text(name: "Number of Axes:", item_id: )",
        R"(edit_text(item_id: )",
        R"(spin_edit(item_id: )",
        R"(edit_popup(menu_id: 700, item_id: )",
        R"(spin_edit_popup(menu_id: 700, item_id: )",
        R"(edit_slider(item_id: )",
        R"(spin_edit_slider(item_id: )",
        R"(slider(item_id: )",
        R"(popup(menu_id: 700, item_id: )",
        R"(popup_menu(menu_id: 700, item_id: )",
        R"(listbox(item_id: )",
        R"(button(image_id: 2106, item_id: )",
    };
    std::string text = "layout Many { view dialog(name: \"Many\", placement: place_column) {";
    for (int i = 0; i < count; ++i) {
        if (i % 5 == 0) text += i == 0 ? "row() {" : "} row() {";
        text += kKinds.at(static_cast<std::size_t>(i) % kKinds.size());
        text += std::to_string(i + 1) + ");";
    }
    return layout::load(text + "} } }", "a layout of many items");
}

void openAndClose(Hands& hands, Dialogs& dialogs, const DialogRequest& request,
                  const layout::Layout& layout) {
    CoADMDialog& dialog = *dialogs.create(request, layout);
    for (const auto& item : dialog.items())
        item->setTip("What this does");
    dialog.show(true);
    hands.pump();
    dialogs.destroy(dialog);
    hands.pump();
}

HWND windowOf(const CoADMItem& item) { return static_cast<HWND>(item.peer()->window()); }

void openAndClosePanel(Hands& hands, HostedDialogs& hosted, const layout::Layout& items) {
    CoADMDialog* panel = nullptr;
    hosted.run([&](Dialogs& dialogs) {
        const DialogRequest request = hosted.request(kADMTabbedFloatingDialogStyle, 0);
        panel = dialogs.create(request, items);
        panel->item(kADMMenuItemID)->list()->setMenu(request.plugin, kFlyoutMenu);
    });
    hands.forgetPaints();
    hosted.showPanel();
    hands.pump();
    for (const auto& item : panel->items())
        CHECK(hands.paintsOf(windowOf(*item)) == 1);
    hosted.run([&](Dialogs& dialogs) { dialogs.destroy(*panel); });
    hands.pump();
}

} // namespace

TEST_CASE("an object that is left behind is counted") {
    struct LeftBehind {
        HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
        HMENU menu = CreatePopupMenu();
        HWND window = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, HWND_MESSAGE,
                                      nullptr, nullptr, nullptr);
        ~LeftBehind() {
            DeleteObject(brush);
            DestroyMenu(menu);
            DestroyWindow(window);
        }
    };
    { const LeftBehind first; } // what the system makes for the first of them
    const Census before;
    const LeftBehind left;
    const Census after;
    CHECK(after.gdi == before.gdi + 1);
    CHECK(after.menuCount == before.menuCount + 1);
    CHECK(after.windowCount == before.windowCount + 1);
}

TEST_CASE("a panel and a dialog of 30 items leave nothing, and open in a tenth of a second") {
    constexpr int kRounds = 24;
    HostedDialogs hosted;
    Hands hands;
    const layout::Layout many = layoutOfItems(30);
    checkLeavesNothing("panel", kRounds, [&] { openAndClosePanel(hands, hosted, many); });
    // The processor's time is checked: a machine with other work to do stretches that on the wall.
    const double before = processorMilliseconds();
    checkLeavesNothing("dialog", kRounds, [&] {
        hosted.run([&](Dialogs& dialogs) {
            openAndClose(hands, dialogs, hosted.request(kADMModalDialogStyle, 0), many);
        });
    });
    CHECK((processorMilliseconds() - before) / kRounds < 100);
}

TEST_CASE("a change paints what changed and no more") {
    HostedDialogs hosted;
    Hands hands;
    hosted.run([&](Dialogs& dialogs) {
        CoADMDialog& dialog =
            *dialogs.create(hosted.request(kADMModalDialogStyle, 0), layoutOfItems(15));
        CoADMItem& field = *dialog.item(6);
        CoADMItem& slider = *dialog.item(11);
        for (CoADMItem* const item : {&field, &slider}) {
            item->setLowest(0);
            item->setHighest(100);
            item->setValue(50);
        }
        dialog.show(true);
        dialog.activate();
        field.activate(true);
        hands.pump();
        SetForegroundWindow(static_cast<HWND>(dialog.peer()->window()));
        hands.pump();
        const HWND edit = FindWindowExW(windowOf(field), nullptr, L"EDIT", nullptr);
        REQUIRE(GetFocus() == edit);
        hands.forgetPaints();
        SUBCASE("typing: the field's text, once a character") {
            hands.type(L"72");
            CHECK(field.hasTyped());
            CHECK(hands.paintsOf(edit) == 2);
            CHECK(hands.paints() == 2);
        }
        SUBCASE("stepping: the text once a step, the arrows with it at most") {
            hands.key(VK_UP);
            hands.key(VK_UP);
            CHECK(field.value() == 52);
            CHECK(hands.paintsOf(edit) == 2);
            CHECK(hands.paints() <= hands.paintsOf(edit) + hands.paintsOf(windowOf(field)));
        }
        SUBCASE("dragging: the slider once a move") {
            const HWND bar = windowOf(slider);
            RECT area{};
            GetClientRect(bar, &area);
            const POINT middle{area.right / 2, area.bottom / 2};
            hands.press(bar, middle);
            hands.forgetPaints();
            for (int step = 1; step <= 3; ++step)
                hands.move(bar, {middle.x + 10 * step, middle.y});
            CHECK(slider.value() > 55);
            CHECK(hands.paintsOf(bar) == 3);
            CHECK(hands.paints() == 3);
            hands.release();
        }
        SUBCASE("the value that it has: nothing") {
            slider.setValue(slider.value());
            field.setValue(field.value());
            field.setTip("A new tip");
            hands.pump();
            CHECK(hands.paints() == 0);
        }
        dialogs.destroy(dialog);
    });
}
