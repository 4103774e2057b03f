/// What native controls report when a user's hand is on them.

#include "tests/toolkit/win/Stage.h"

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <stdexcept>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

constexpr Bounds kWide{20, 20, 140, 42};
constexpr Bounds kBelow{20, 60, 140, 82};

ItemView listing(ControlKind kind, Bounds bounds = kWide) {
    ItemView view = itemView(kind, bounds);
    for (const char* const text : {"One", "Two", "-", "Three"}) {
        EntryView entry;
        entry.text = text;
        entry.separator = entry.text == "-";
        view.entries.push_back(entry);
    }
    view.chosen = 0;
    return view;
}

/// Without what only tells where the focus is.
Log acts(const Log& log) {
    Log kept;
    std::copy_if(log.begin(), log.end(), std::back_inserter(kept),
                 [](const std::string& entry) { return entry != "focus" && entry != "blur"; });
    return kept;
}

} // namespace

TEST_CASE("a button is pressed by mouse and Space, and not when the mouse is let go beside it") {
    Stage stage;
    StagedItem& button = stage.add(itemView(ControlKind::PushButton, kWide, "Apply"));
    stage.open();
    stage.clickMiddle(button.window());
    CHECK(acts(stage.log) == Log{"click"});
    stage.log.clear();
    stage.key(VK_SPACE);
    CHECK(acts(stage.log) == Log{"click"});
    stage.log.clear();
    stage.press(button.window(), {10, 10});
    stage.move(button.window(), {10, 100});
    stage.release();
    CHECK(acts(stage.log).empty());
    button.view.enabled = false;
    button.peer->changed(Aspect::Enabled);
    stage.clickMiddle(button.window());
    CHECK(acts(stage.log).empty());
}

TEST_CASE("an item may go, and its dialog with it, while it reports a click") {
    Stage stage;
    StagedItem& button = stage.add(itemView(ControlKind::PushButton, kWide, "Close"));
    button.onClick = [&] { stage.close(); };
    stage.open();
    stage.clickMiddle(button.window());
    CHECK(stage.peer == nullptr);
    CHECK(stage.failures == 0);
}

TEST_CASE("what a handler throws is told once and goes no further") {
    Stage stage;
    StagedItem& button = stage.add(itemView(ControlKind::CheckBox, kWide, "Active"));
    button.onClick = [] { throw std::runtime_error("a handler's own"); };
    stage.open();
    stage.clickMiddle(button.window());
    CHECK(stage.failures == 1);
}

TEST_CASE("a field tells each change of its text, and that it is done with") {
    Stage stage;
    stage.usesKeys = true;
    StagedItem& field = stage.add(itemView(ControlKind::Edit, kWide, "5"));
    stage.open();
    field.peer->focus();
    stage.pump();
    stage.log.clear();
    stage.type(L"1in");
    CHECK(stage.log == Log{"typed 1", "typed 1i", "typed 1in"}); // over what was selected
    stage.log.clear();
    SUBCASE("by Enter: the number first, then the dialog's key") {
        stage.key(VK_RETURN);
        CHECK(stage.log == Log{"commit", "key Enter"});
    }
    SUBCASE("by Tab") {
        stage.key(VK_TAB);
        CHECK(stage.log == Log{"commit", "key Tab"});
    }
    SUBCASE("refused: the key goes no further, the former text is back and selected") {
        field.accepts = false;
        stage.key(VK_RETURN);
        CHECK(stage.log == Log{"commit"});
        wchar_t text[8];
        GetWindowTextW(field.field(), text, 8);
        CHECK(std::wstring(text) == L"5");
        CHECK(SendMessageW(field.field(), EM_GETSEL, 0, 0) == MAKELONG(0, 1));
    }
    SUBCASE("by Escape: nothing is taken over") {
        stage.key(VK_ESCAPE);
        CHECK(stage.log == Log{"revert", "key Escape"});
    }
    SUBCASE("a text that the model sets is told to nobody") {
        field.view.text = "72";
        field.view.typed.reset(); // the new value counts
        field.peer->changed(Aspect::Text);
        stage.pump();
        CHECK(stage.log.empty());
        stage.key(VK_RETURN);
        CHECK(stage.log == Log{"key Enter"}); // nothing typed, nothing to take over
    }
}

TEST_CASE("a field that was refused when the focus left gets it back") {
    Stage stage;
    StagedItem& field = stage.add(itemView(ControlKind::Edit, kWide, "5"));
    StagedItem& other = stage.add(itemView(ControlKind::Edit, kBelow, "6"));
    stage.open();
    field.peer->focus();
    stage.type(L"400");
    field.accepts = false;
    stage.clickMiddle(other.field());
    CHECK(GetFocus() == field.field());
}

TEST_CASE("a field that is justified anew keeps its text and the focus") {
    Stage stage;
    StagedItem& item = stage.add(itemView(ControlKind::Edit, {20, 20, 120, 42}, "5"));
    stage.open();
    item.peer->focus();
    stage.pump();
    const auto leftOfText = [&] {
        return static_cast<short>(LOWORD(SendMessageW(item.field(), EM_POSFROMCHAR, 0, 0)));
    };
    const int before = leftOfText();
    item.view.justify = 2;
    item.peer->changed(Aspect::Look);
    stage.pump();
    CHECK(leftOfText() > before + 50);
    CHECK(GetFocus() == item.field());
    stage.log.clear();
    stage.type(L"7");
    CHECK(stage.log == Log{"typed 75"});
}

TEST_CASE("keys and the wheel step a number") {
    struct Row {
        WORD modifier;
        WORD key;
        const char* step;
    };
    const Row rows[] = {
        {0, VK_UP, "step 1."},
        {0, VK_DOWN, "step -1."},
        {VK_SHIFT, VK_UP, "step 1 large."},
        {0, VK_PRIOR, "step 1 large."},
        {0, VK_NEXT, "step -1 large."},
    };
    Stage stage;
    StagedItem& field = stage.add(itemView(ControlKind::SpinEdit, kWide, "5"));
    stage.open();
    field.peer->focus();
    stage.pump();
    for (const auto& [modifier, key, step] : rows) {
        stage.log.clear();
        if (modifier != 0)
            stage.keyWith(modifier, key);
        else
            stage.key(key);
        CHECK(acts(stage.log) == Log{step});
    }
    stage.log.clear();
    stage.move(field.window(), {10, 10});
    stage.wheel(2);
    CHECK(acts(stage.log) == Log{"step 2."});
}

TEST_CASE("an arrow that is held repeats, and says when it is let go") {
    Stage stage;
    StagedItem& field = stage.add(itemView(ControlKind::SpinEdit, kWide, "5"));
    stage.open();
    RECT area{};
    GetClientRect(field.window(), &area);
    stage.press(field.window(), {area.right - 8, area.bottom - 5});
    stage.pump(650);
    stage.release();
    const Log told = acts(stage.log);
    REQUIRE(told.size() >= 4);
    CHECK(told.front() == "step -1..");
    CHECK(told.back() == "step 0.");
    CHECK(std::count(told.begin(), told.end(), "step -1..") == static_cast<long>(told.size()) - 1);
    stage.log.clear();
    stage.pump(200);
    CHECK(acts(stage.log).empty());
}

TEST_CASE("a slider tells every place on its way and the last one once more") {
    Stage stage;
    ItemView view = itemView(ControlKind::Slider, {20, 20, 130, 36});
    view.value = 50;
    StagedItem& slider = stage.add(view);
    stage.open();
    const int middle = 55; // the bar runs from 5 to 105
    SUBCASE("dragged") {
        stage.press(slider.window(), {middle, 8});
        stage.move(slider.window(), {middle + 10, 8});
        stage.move(slider.window(), {middle + 25, 8});
        stage.move(slider.window(), {middle + 500, 8});
        stage.release();
        CHECK(acts(stage.log) == Log{"slide 60..", "slide 75..", "slide 100..", "slide 100."});
    }
    SUBCASE("pressed beside the thumb: a large step toward the pointer") {
        stage.click(slider.window(), {90, 8});
        stage.click(slider.window(), {20, 8});
        CHECK(acts(stage.log) == Log{"slide 60.", "slide 50."});
    }
    SUBCASE("by keys, up to its ends") {
        slider.peer->focus();
        stage.pump();
        stage.log.clear();
        stage.key(VK_RIGHT);
        stage.key(VK_PRIOR);
        stage.key(VK_END);
        stage.key(VK_RIGHT);
        CHECK(acts(stage.log) == Log{"slide 51.", "slide 61.", "slide 100."});
    }
}

TEST_CASE("a popup list is chosen from by mouse and by keys") {
    Stage stage;
    StagedItem& list = stage.add(listing(ControlKind::PopupList));
    stage.open();
    stage.clickMiddle(list.window());
    const HWND popup = popupOf(stage.window());
    REQUIRE(popup != nullptr);
    SUBCASE("a click on an entry") {
        RECT area{};
        GetClientRect(popup, &area);
        stage.click(popup, {20, area.bottom - 12});
        CHECK(acts(stage.log) == Log{"choose 3"});
        CHECK(popupOf(stage.window()) == nullptr);
    }
    SUBCASE("arrows pass over the separator, Enter chooses") {
        stage.key(VK_DOWN);
        stage.key(VK_DOWN);
        stage.key(VK_RETURN);
        CHECK(acts(stage.log) == Log{"choose 3"});
    }
    SUBCASE("Escape and a click elsewhere choose nothing") {
        stage.key(VK_ESCAPE);
        CHECK(popupOf(stage.window()) == nullptr);
        stage.clickMiddle(list.window());
        REQUIRE(popupOf(stage.window()) != nullptr);
        stage.click(stage.window(), {300, 200});
        CHECK(popupOf(stage.window()) == nullptr);
        CHECK(acts(stage.log).empty());
    }
    SUBCASE("the dialog goes while it is open") {
        stage.close();
        stage.pump();
        CHECK(stage.failures == 0);
    }
}

TEST_CASE("an edit with a popup offers its list, a list box its rows") {
    Stage stage;
    StagedItem& field = stage.add(listing(ControlKind::SpinEditPopup));
    StagedItem& box = stage.add(listing(ControlKind::ListBox, {160, 20, 300, 120}));
    stage.open();
    RECT area{};
    GetClientRect(field.window(), &area);
    stage.click(field.window(), {area.right - 8, 11});
    REQUIRE(popupOf(stage.window()) != nullptr);
    stage.key(VK_DOWN);
    stage.key(VK_RETURN);
    CHECK(acts(stage.log) == Log{"choose 1"});
    stage.log.clear();
    stage.click(box.window(), {20, 32});
    stage.key(VK_DOWN);
    CHECK(acts(stage.log) == Log{"choose 1", "choose 3"});
}

TEST_CASE("Tab, Enter, Escape and access keys reach the dialog from any control") {
    for (const ControlKind kind :
         {ControlKind::PushButton, ControlKind::CheckBox, ControlKind::Slider,
          ControlKind::PopupList, ControlKind::Edit}) {
        CAPTURE(static_cast<int>(kind));
        Stage stage;
        stage.usesKeys = true;
        StagedItem& item = stage.add(itemView(kind, kWide, "Text"));
        stage.open();
        item.peer->focus();
        stage.pump();
        stage.log.clear();
        stage.key(VK_TAB);
        stage.keyWith(VK_SHIFT, VK_TAB);
        stage.key(VK_RETURN);
        stage.key(VK_ESCAPE);
        stage.keyWith(VK_MENU, 'X');
        CHECK(acts(stage.log) ==
              Log{"key Tab", "key BackTab", "key Enter", "key Escape", "key Access X"});
    }
}

TEST_CASE("a tip shows when the pointer rests on an item, a disabled one too") {
    for (const bool enabled : {true, false}) {
        CAPTURE(enabled);
        Stage stage;
        ItemView view = itemView(ControlKind::PushButton, kWide, "Apply");
        view.tip = "Apply the symmetry axes to mirror the artwork";
        view.enabled = enabled;
        StagedItem& button = stage.add(view);
        stage.open();
        stage.move(stage.window(), {250, 200});
        stage.move(button.window(), {30, 10});
        stage.pump(1200);
        const HWND tip = tipOf(stage.window());
        REQUIRE(tip != nullptr);
        CHECK(IsWindowVisible(tip) != FALSE);
    }
}

TEST_CASE("the pointer over an item takes the cursor that the item is given") {
    const HCURSOR ours = LoadCursorW(nullptr, IDC_UPARROW);
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    struct Row {
        int number;
        HCURSOR shown;
    };
    const Row rows[] = {
        {0, arrow},     {-6, LoadCursorW(nullptr, IDC_HAND)}, {-9, arrow}, {16021, ours},
        {16999, arrow}, // no such resource
    };
    Stage stage;
    stage.peers.screen().cursorOf = [=](int id) { return id == 16021 ? ours : nullptr; };
    StagedItem& item = stage.add(itemView(ControlKind::PushButton, {20, 20, 120, 44}, "Item"));
    stage.open();
    for (const auto& row : rows) {
        CAPTURE(row.number);
        item.view.cursor = row.number;
        item.peer->changed(Aspect::Look);
        stage.move(stage.window(), {200, 200});
        stage.move(item.window(), {10, 10});
        CHECK(GetCursor() == row.shown);
    }
}

TEST_CASE("a popup opened by a key leaves the choice to the keys, whatever the pointer rests on") {
    Stage stage;
    ItemView view = itemView(ControlKind::PopupList, {20, 20, 140, 44});
    for (const char* const text : {"Points", "Inches", "Millimetres"}) {
        EntryView entry;
        entry.text = text;
        view.entries.push_back(entry);
    }
    view.chosen = 1;
    StagedItem& popup = stage.add(view);
    stage.open();
    stage.move(stage.window(), {40, 56}); // where its first entry will be
    popup.peer->focus();
    stage.key(VK_SPACE);
    // What Windows sends when a window appears below a pointer at rest.
    const HWND list = GetCapture();
    REQUIRE(list != nullptr);
    SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(20, 12));
    stage.key(VK_DOWN);
    stage.log.clear();
    stage.key(VK_RETURN);
    CHECK(stage.log == Log{"choose 2"});
}

TEST_CASE("a user item is drawn by its owner and told the mouse") {
    Stage stage;
    StagedItem& item = stage.add(itemView(ControlKind::User, {20, 20, 60, 60}));
    item.onDraw = [](CoADMDrawer& drawer) {
        drawer.setColour(Colour{200, 10, 20});
        drawer.fillRect({10, 10, 20, 20});
    };
    stage.open();
    CHECK(Stage::pixel(item.window(), {15, 15}) == RGB(200, 10, 20));
    CHECK(Stage::pixel(item.window(), {25, 15}) != RGB(200, 10, 20));
    stage.click(item.window(), {7, 9});
    const Log told = acts(stage.log);
    CHECK(std::count(told.begin(), told.end(), "track 2 at 7,9") == 1);
    CHECK(std::count(told.begin(), told.end(), "track -2 at 7,9") == 1);
}
