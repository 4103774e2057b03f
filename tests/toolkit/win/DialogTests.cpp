/// Dialogs as a whole: modal loops, colours, and how much is painted.

#include "tests/toolkit/win/Stage.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <stdexcept>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

/// One item of each kind, in rows.
void addEveryKind(Stage& stage) {
    for (int kind = 0; kind <= static_cast<int>(ControlKind::User); ++kind) {
        const int left = 10 + kind % 3 * 100;
        const int top = 10 + kind / 3 * 36;
        ItemView view =
            itemView(static_cast<ControlKind>(kind), {left, top, left + 90, top + 24}, "&Item");
        view.entries.resize(3);
        view.chosen = 0;
        view.tip = "A tip";
        stage.add(view);
    }
}

} // namespace

TEST_CASE("a modal dialog keeps its owner disabled until it is ended") {
    const Owner owner;
    Stage stage(DialogKind::Modal);
    stage.view.parent = owner.window;
    StagedItem& button = stage.add(itemView(ControlKind::PushButton, {20, 20, 120, 44}, "OK"));
    stage.peer = stage.peers.createDialog(stage.view, stage);
    button.peer = stage.peer->createItem(button.view, button);
    CHECK(stage.peer->endModal() == false); // no loop yet
    bool disabled = false;
    button.onClick = [&] {
        disabled = IsWindowEnabled(owner.window) == FALSE;
        CHECK(stage.peer->endModal());
    };
    SUBCASE("by a button") {
        soon([&] { stage.clickMiddle(button.window()); });
        stage.peer->runModal();
        CHECK(disabled);
    }
    SUBCASE("by its close box") {
        stage.onClose = [&] { stage.peer->endModal(); };
        soon([&] { PostMessageW(stage.window(), WM_CLOSE, 0, 0); });
        stage.peer->runModal();
    }
    SUBCASE("by what a handler throws, which comes out of the loop") {
        button.onClick = [] { throw std::runtime_error("a handler's own"); };
        soon([&] { SendMessageW(button.window(), BM_CLICK, 0, 0); });
        CHECK_THROWS_WITH(stage.peer->runModal(), "a handler's own");
        CHECK(stage.failures == 0);
    }
    CHECK(IsWindowEnabled(owner.window) != FALSE);
    CHECK(IsWindowVisible(stage.window()) == FALSE);
}

TEST_CASE("a dialog keeps to the middle of the screen until it has been shown") {
    Stage stage;
    stage.peer = stage.peers.createDialog(stage.view, stage);
    const auto middle = [&] {
        RECT place{};
        GetWindowRect(stage.window(), &place);
        return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    };
    const auto grow = [&] {
        stage.view.size = {stage.view.size.width + 200, stage.view.size.height + 100};
        stage.peer->changed();
    };
    const POINT first = middle();
    grow();
    CHECK(std::abs(middle().x - first.x) <= 1);
    CHECK(std::abs(middle().y - first.y) <= 1);
    stage.view.visible = true;
    stage.peer->changed();
    grow();
    CHECK(middle().x == first.x + 100); // the corner stays where the user has seen it
}

TEST_CASE("a dialog that is open follows the host's brightness") {
    Stage stage;
    StagedItem& field = stage.add(itemView(ControlKind::Edit, {20, 20, 140, 42}, "5"));
    stage.open();
    const COLORREF before = Stage::pixel(stage.window(), {5, 5});
    const COLORREF fieldBefore = Stage::pixel(field.window(), {3, 10});
    stage.themes.dialogs.dark = true;
    stage.themes.dialogs.background = {1, 0.2F, 0.2F, 0.2F};
    stage.themes.dialogs.editBackground = {1, 0.1F, 0.1F, 0.1F};
    stage.peers.themeChanged();
    stage.pump();
    CHECK(before == RGB(214, 214, 214));
    CHECK(Stage::pixel(stage.window(), {5, 5}) == RGB(51, 51, 51));
    CHECK(fieldBefore == RGB(255, 255, 255));
    CHECK(Stage::pixel(field.window(), {3, 10}) == RGB(26, 26, 26));
}

TEST_CASE("what did not change is not painted") {
    Stage stage;
    addEveryKind(stage);
    StagedItem& field = stage.add(itemView(ControlKind::Edit, {200, 190, 300, 212}, "5"));
    ItemView view = itemView(ControlKind::Slider, {20, 190, 130, 206});
    view.value = 50;
    StagedItem& slider = stage.add(view);
    stage.open();
    SUBCASE("typing a character paints the field's text once") {
        field.peer->focus();
        stage.pump();
        stage.forgetPaints();
        stage.type(L"7");
        CHECK(stage.paintsOf(field.field()) == 1);
        CHECK(stage.paints() == 1);
    }
    SUBCASE("a move of the thumb paints the slider once") {
        stage.press(slider.window(), {55, 8});
        stage.forgetPaints();
        stage.move(slider.window(), {70, 8});
        CHECK(stage.paintsOf(slider.window()) == 1);
        CHECK(stage.paints() == 1);
        stage.release();
    }
    SUBCASE("the same text again paints nothing") {
        stage.forgetPaints();
        field.peer->changed(Aspect::Text);
        stage.pump();
        CHECK(stage.paints() == 0);
    }
}

TEST_CASE("a popup menu answers with the position chosen") {
    Stage stage;
    ItemView view = itemView(ControlKind::PopupMenu, {20, 20, 120, 44}, "More");
    for (const char* const text : {"Copy", "-", "Remove"}) {
        EntryView entry;
        entry.text = text;
        entry.separator = entry.text == "-";
        view.entries.push_back(entry);
    }
    StagedItem& menu = stage.add(view);
    stage.open();
    stage.move(stage.window(), {300, 230}); // a pointer on the menu would choose as well
    menu.peer->focus();
    stage.pump();
    stage.log.clear();
    stage.useMenu([&] { stage.key(VK_SPACE); }, {VK_DOWN, VK_DOWN, VK_RETURN});
    REQUIRE(!stage.log.empty());
    CHECK(stage.log.back() == "choose 2");
}
