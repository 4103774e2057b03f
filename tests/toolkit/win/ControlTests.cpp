/// Controls used by a hand: what the user does arrives at the client as the right notification with
/// the right value.

#include "tests/toolkit/win/Stage.h"

#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplWin/WinPeers.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

POINT arrowOf(HWND field, bool up) {
    RECT area{};
    GetClientRect(field, &area);
    return {area.right - 8, up ? 5 : area.bottom - 5};
}

/// Fills a list with "One", "Two", a line and "Three", the first chosen.
void fill(ADMItemRef item) {
    ADMListRef list = kItemSuite.GetList(item);
    for (const char* const text : {"One", "Two", "-", "Three"})
        kEntrySuite.SetText(kListSuite.InsertEntry(list, 99), text);
    kEntrySuite.MakeSeparator(kListSuite.IndexEntry(list, 2), true);
    kEntrySuite.Select(kListSuite.IndexEntry(list, 0), true);
}

/// The index of the entry that is chosen, or -1.
int chosenIn(ADMItemRef item) {
    ADMEntryRef entry = kListSuite.GetActiveEntry(kItemSuite.GetList(item));
    return entry != nullptr ? kEntrySuite.GetIndex(entry) : -1;
}

/// Clicks the last entry of the popup that is open.
void clickLastOf(Stage& stage, ADMDialogRef dialog) {
    const HWND popup = popupOf(Stage::window(dialog));
    REQUIRE(popup != nullptr);
    RECT area{};
    GetClientRect(popup, &area);
    stage.click(popup, {20, area.bottom - 12});
    CHECK(popupOf(Stage::window(dialog)) == nullptr);
}

} // namespace

TEST_CASE("a button is pressed by mouse and Space, and not when the mouse is let go beside it") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef button = stage.add(dialog, 3, kADMTextPushButtonType, "Apply");
    stage.show(dialog);
    const HWND window = Stage::window(button);
    stage.clickMiddle(window);
    stage.key(VK_SPACE);
    CHECK(stage.takeHeard() == Log{"user 3 = 0", "user 3 = 0"});
    stage.press(window, {10, 10});
    stage.move(window, {10, 100});
    stage.release();
    kItemSuite.Enable(button, false);
    stage.clickMiddle(window);
    CHECK(stage.takeHeard().empty());
}

TEST_CASE("what is typed is told as it comes, then taken over or refused") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef field = stage.addNumber(dialog, 4, kADMTextEditType, 100, -1000, 1000);
    kItemSuite.SetUnits(field, kADMPointUnits);
    kItemSuite.SetPrecision(field, 3);
    kItemSuite.ShowUnits(field, true);
    ADMItemRef other = stage.add(dialog, 5, kADMTextEditType);
    stage.show(dialog);
    enum class Focus { Leaves, Stays };
    struct Row {
        std::wstring typed;
        std::function<void()> end;
        std::wstring shown;
        Log told; ///< of what is complete
        Focus focus;
    };
    const auto strike = [&](WORD key) { return [&stage, key] { stage.key(key); }; };
    const Row rows[] = {
        {L"1 in", strike(VK_RETURN), L"72.000 pt", {"user 4 = 72"}, Focus::Stays},
        {L"10+5 mm", strike(VK_TAB), L"24.173 pt", {"user 4 = 24.173"}, Focus::Leaves},
        {L"1001", strike(VK_RETURN), L"100.000 pt", {}, Focus::Stays},
        {L"1001", [&] { stage.clickMiddle(Stage::field(other)); }, L"100.000 pt", {}, Focus::Stays},
        {L"100.000", strike(VK_RETURN), L"100.000 pt", {}, Focus::Stays},
        {L"72", strike(VK_ESCAPE), L"100.000 pt", {}, Focus::Stays},
    };
    for (const auto& row : rows) {
        INFO(std::string(row.typed.begin(), row.typed.end()));
        kItemSuite.SetFloatValue(field, 100);
        kItemSuite.Activate(field, true);
        stage.pump();
        kItemSuite.SelectAll(field);
        static_cast<void>(stage.takeHeard());
        stage.type(row.typed); // over what is selected
        const Log heard = stage.takeHeard();
        CHECK(std::ranges::count(heard, "moving 4 = 100") == std::ssize(heard));
        CHECK(heard.size() == row.typed.size());
        row.end();
        CHECK(stage.takeHeard() == row.told);
        CHECK(Stage::shown(field) == row.shown);
        CHECK((GetFocus() == Stage::field(field)) == (row.focus == Focus::Stays));
    }
    CHECK(stage.failures == 0);
}

TEST_CASE("a field that is justified anew keeps its text and the focus") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef item = stage.add(dialog, 4, kADMTextEditType, "5");
    stage.show(dialog);
    kItemSuite.Activate(item, true);
    stage.pump();
    const auto leftOfText = [&] {
        return static_cast<short>(LOWORD(SendMessageW(Stage::field(item), EM_POSFROMCHAR, 0, 0)));
    };
    const int before = leftOfText();
    kItemSuite.SetJustify(item, 2); // to the right
    stage.pump();
    CHECK(leftOfText() > before + 50);
    CHECK(GetFocus() == Stage::field(item));
    stage.type(L"7");
    CHECK(Stage::shown(item) == L"75");
}

TEST_CASE("keys and the wheel step a number") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef field = stage.addNumber(dialog, 4, kADMSpinEditType, 50, 1, 100);
    stage.show(dialog);
    kItemSuite.Activate(field, true);
    stage.pump();
    stage.key(VK_UP);
    stage.keyWith(VK_SHIFT, VK_UP);
    stage.key(VK_DOWN);
    stage.key(VK_NEXT);
    stage.key(VK_PRIOR);
    stage.move(Stage::window(field), {10, 10});
    stage.wheel(2);
    CHECK(stage.takeHeard() == Log{"user 4 = 51", "user 4 = 61", "user 4 = 60", "user 4 = 50",
                                   "user 4 = 60", "user 4 = 62"});
}

TEST_CASE("an arrow that is held counts up to the limit and tells the end once") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef field = stage.addNumber(dialog, 4, kADMSpinEditType, 1, 1, 4);
    stage.show(dialog);
    stage.press(Stage::window(field), arrowOf(Stage::window(field), true));
    CHECK(stage.takeHeard() == Log{"moving 4 = 2"});
    for (int waits = 0; waits < 40 && kItemSuite.GetFloatValue(field) < 4; ++waits)
        stage.pump(50);
    stage.pump(200); // it goes on being held
    CHECK(stage.takeHeard() == Log{"moving 4 = 3", "moving 4 = 4"});
    stage.release();
    CHECK(stage.takeHeard() == Log{"user 4 = 4"});
    CHECK(Stage::shown(field) == L"4");
}

TEST_CASE("a slider tells its way and then its end, and steps by keys and beside its thumb") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef slider = stage.addNumber(dialog, 4, kADMSliderType, 50, 0, 100);
    stage.show(dialog);
    const HWND window = Stage::window(slider);
    stage.click(window, {90, 11});
    stage.click(window, {8, 11});
    CHECK(stage.takeHeard() == Log{"user 4 = 60", "user 4 = 50"});
    kItemSuite.Activate(slider, true);
    stage.key(VK_RIGHT);
    stage.key(VK_PRIOR);
    stage.key(VK_END);
    stage.key(VK_RIGHT); // at the end already
    CHECK(stage.takeHeard() == Log{"user 4 = 51", "user 4 = 61", "user 4 = 100"});
    kItemSuite.SetFloatValue(slider, 0);
    stage.press(window, {5, 11});
    stage.move(window, {50, 11});
    stage.move(window, {200, 11});
    stage.release();
    CHECK(stage.takeHeard() == Log{"moving 4 = 50", "moving 4 = 100", "user 4 = 100"});
}

TEST_CASE("a popup list is chosen from by mouse and by keys") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef list = stage.add(dialog, 4, kADMPopupListType);
    fill(list);
    stage.show(dialog);
    const HWND window = Stage::window(dialog);
    stage.clickMiddle(Stage::window(list));
    SUBCASE("a click on an entry") {
        clickLastOf(stage, dialog);
        CHECK(chosenIn(list) == 3);
        CHECK(stage.takeHeard() == Log{"user 4 = 0"});
    }
    SUBCASE("arrows pass over the separator, Enter chooses") {
        stage.key(VK_DOWN);
        stage.key(VK_DOWN);
        stage.key(VK_RETURN);
        CHECK(chosenIn(list) == 3);
        CHECK(stage.takeHeard() == Log{"user 4 = 0"});
    }
    SUBCASE("Escape and a click elsewhere choose nothing") {
        stage.key(VK_ESCAPE);
        CHECK(popupOf(window) == nullptr);
        stage.clickMiddle(Stage::window(list));
        REQUIRE(popupOf(window) != nullptr);
        stage.click(window, {300, 200});
        CHECK(popupOf(window) == nullptr);
        CHECK(stage.takeHeard().empty());
    }
    SUBCASE("the dialog goes while it is open") {
        kDialogSuite.Destroy(dialog);
        stage.pump();
        CHECK(stage.failures == 0);
    }
}

TEST_CASE("a popup opened by a key leaves the choice to the keys, whatever the pointer rests on") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef list = stage.add(dialog, 4, kADMPopupListType);
    fill(list);
    stage.show(dialog);
    stage.move(Stage::window(list), {20, 34}); // where its first entry will be
    kItemSuite.Activate(list, true);
    stage.key(VK_SPACE);
    // What Windows sends when a window appears below a pointer at rest.
    const HWND popup = GetCapture();
    REQUIRE(popup != nullptr);
    SendMessageW(popup, WM_MOUSEMOVE, 0, MAKELPARAM(20, 12));
    stage.key(VK_DOWN);
    stage.key(VK_RETURN);
    CHECK(chosenIn(list) == 1);
}

TEST_CASE("a field offers the numbers of its menu resource, a list box its rows") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef count = stage.addNumber(dialog, 11, kADMSpinEditPopupType, 3, 1, 72);
    kListSuite.SetMenuID(kItemSuite.GetList(count), nullptr, 700, nullptr);
    ADMItemRef box = stage.add(dialog, 4, kADMListBoxType);
    kItemSuite.Size(box, 100, 100);
    fill(box);
    stage.show(dialog);
    static_cast<void>(stage.takeHeard()); // of the new size
    stage.click(Stage::window(count), arrowOf(Stage::window(count), true));
    clickLastOf(stage, dialog);
    CHECK(stage.takeHeard() == Log{"user 11 = 6"});
    CHECK(Stage::shown(count) == L"6");
    stage.click(Stage::window(box), {20, 32});
    CHECK(chosenIn(box) == 1);
    stage.key(VK_DOWN);
    CHECK(chosenIn(box) == 3);
}

TEST_CASE("a menu shows what its resource and its client say, and gives back what is chosen") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef menu = stage.add(dialog, 4, kADMPopupMenuType, "Axes");
    ADMListRef list = kItemSuite.GetList(menu);
    kListSuite.SetMenuID(list, nullptr, 700, nullptr);
    REQUIRE(kListSuite.NumberOfEntries(list) == 6);
    kEntrySuite.Enable(kListSuite.IndexEntry(list, 1), false);
    kEntrySuite.MakeSeparator(kListSuite.IndexEntry(list, 2), true);
    stage.show(dialog);
    stage.move(Stage::window(dialog), {300, 230}); // a pointer on the menu would choose as well
    kItemSuite.Activate(menu, true);
    stage.pump();
    const auto choose = [&](const std::vector<WORD>& keys) {
        stage.useMenu([&] { stage.key(VK_SPACE); }, keys);
        return chosenIn(menu);
    };
    CHECK(choose({VK_ESCAPE}) == -1);
    CHECK(stage.takeHeard().empty());
    // The first, the disabled one, past the line: the fourth.
    CHECK(choose({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}) == 3);
    CHECK(stage.takeHeard() == Log{"user 4 = 0"});
}

TEST_CASE("a click on a radio button switches its group, arrows go on in it") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef first = stage.add(dialog, 1, kADMTextRadioButtonType, "Each");
    ADMItemRef second = stage.add(dialog, 2, kADMTextRadioButtonType, "All");
    kItemSuite.SetBooleanValue(first, true);
    stage.show(dialog);
    stage.clickMiddle(Stage::window(second));
    stage.clickMiddle(Stage::window(second)); // it is on
    CHECK(stage.takeHeard() == Log{"user 2 = 1"});
    stage.key(VK_DOWN);
    CHECK(stage.takeHeard() == Log{"user 1 = 1"});
    CHECK(kItemSuite.GetBooleanValue(second) == 0);
}

TEST_CASE("an item's tip shows when the pointer rests on it, unless tips are switched off") {
    struct Row {
        bool enabled;
        bool tips;
    };
    for (const auto& [enabled, tips] : {Row{true, true}, Row{false, true}, Row{true, false}}) {
        CAPTURE(enabled);
        CAPTURE(tips);
        Stage stage;
        ADMDialogRef dialog = stage.dialog();
        ADMItemRef button = stage.add(dialog, 3, kADMTextPushButtonType, "Apply");
        kItemSuite.Enable(button, enabled);
        kItemSuite.SetTipString(button, "Apply the symmetry axes to mirror the artwork");
        kBasicSuite.EnableToolTips(tips);
        stage.show(dialog);
        const HWND window = Stage::window(dialog);
        stage.move(window, {300, 230});
        stage.move(Stage::window(button), {30, 10});
        const auto isShown = [&] {
            const HWND tip = tipOf(window);
            return tip != nullptr && IsWindowVisible(tip) != FALSE;
        };
        for (int waits = 0; waits < 24 && !isShown(); ++waits)
            stage.pump(50);
        CHECK(isShown() == tips);
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
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef item = stage.add(dialog, 3, kADMTextPushButtonType, "Item");
    stage.show(dialog);
    WinPeers::current().screen().cursorOf = [=](int id) { return id == 16021 ? ours : nullptr; };
    for (const auto& row : rows) {
        CAPTURE(row.number);
        kItemSuite.SetCursorID(item, nullptr, row.number, nullptr);
        stage.move(Stage::window(dialog), {200, 200});
        stage.move(Stage::window(item), {10, 10});
        CHECK(GetCursor() == row.shown);
    }
}

TEST_CASE("a user item is drawn by its owner, with images too, and told the mouse") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef item = stage.add(dialog, 4, kADMUserType);
    ADMImageRef image = kImageSuite.Create(10, 6, 0);
    ADMDrawerRef pixels = kImageSuite.BeginADMDrawer(image);
    const ADMRect left{0, 0, 5, 6};
    const ADMRGBColor red{65535, 0, 0};
    kDrawerSuite.SetRGBColor(pixels, &red);
    kDrawerSuite.FillRect(pixels, &left);
    kImageSuite.EndADMDrawer(image);
    kItemSuite.SetUserData(item, image);
    kItemSuite.SetDrawProc(item, [](ADMItemRef drawn, ADMDrawerRef drawer) {
        auto* const picture = static_cast<ADMImageRef>(kItemSuite.GetUserData(drawn));
        const ADMPoint corner{2, 3};
        kDrawerSuite.DrawADMImage(drawer, picture, &corner);
        const ADMRect around{50, 0, 70, 20};
        kDrawerSuite.DrawADMImageCentered(drawer, picture, &around);
    });
    static Log tracked;
    tracked.clear();
    kItemSuite.SetTrackProc(item, [](ADMItemRef, ADMTrackerRef tracker) -> ADMBoolean {
        ADMPoint point{};
        kTrackerSuite.GetPoint(tracker, &point);
        tracked.push_back(std::to_string(kTrackerSuite.GetAction(tracker)) + " at " +
                          std::to_string(point.h) + "," + std::to_string(point.v));
        return true;
    });
    stage.show(dialog);
    const HWND window = Stage::window(item);
    const auto colour = [&](int x, int y) { return pixelOf(window, {x, y}); };
    const COLORREF ground = colour(40, 10);
    CHECK(colour(2, 3) == RGB(255, 0, 0));
    CHECK(colour(6, 8) == RGB(255, 0, 0));
    CHECK(colour(7, 8) == RGB(0, 0, 0));
    CHECK(colour(12, 8) == ground);
    CHECK(colour(55, 7) == RGB(255, 0, 0));
    CHECK(colour(64, 12) == RGB(0, 0, 0));
    CHECK(colour(64, 13) == ground);
    stage.click(window, {7, 9});
    CHECK(std::ranges::count(tracked, "2 at 7,9") == 1);
    CHECK(std::ranges::count(tracked, "-2 at 7,9") == 1);
    kImageSuite.Destroy(image);
    CHECK_THROWS_AS(kImageSuite.Create(0, 5, 0), NRDMParameterException);
}

TEST_CASE("a change paints what changed and no more") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef field = stage.addNumber(dialog, 4, kADMSpinEditType, 50, 0, 100);
    ADMItemRef slider = stage.addNumber(dialog, 5, kADMSliderType, 50, 0, 100);
    stage.add(dialog, 6, kADMTextPushButtonType, "Apply");
    stage.add(dialog, 7, kADMTextCheckBoxType, "Snap");
    stage.show(dialog);
    kItemSuite.Activate(field, true);
    stage.pump();
    const HWND edit = Stage::field(field);
    REQUIRE(GetFocus() == edit);
    stage.forgetPaints();
    SUBCASE("typing: the field's text, once a character") {
        stage.type(L"72");
        CHECK(stage.paintsOf(edit) == 2);
        CHECK(stage.paints() == 2);
    }
    SUBCASE("stepping: the text once a step, the arrows with it at most") {
        stage.key(VK_UP);
        stage.key(VK_UP);
        CHECK(stage.paintsOf(edit) == 2);
        CHECK(stage.paints() <= stage.paintsOf(edit) + stage.paintsOf(Stage::window(field)));
    }
    SUBCASE("dragging: the slider once a move") {
        const HWND bar = Stage::window(slider);
        stage.press(bar, {50, 11});
        stage.forgetPaints();
        for (const LONG x : {60, 70, 80})
            stage.move(bar, {x, 11});
        CHECK(stage.paintsOf(bar) == 3);
        CHECK(stage.paints() == 3);
        stage.release();
    }
    SUBCASE("the value that it has: nothing") {
        kItemSuite.SetFloatValue(slider, 50);
        kItemSuite.SetFloatValue(field, 50);
        kItemSuite.SetTipString(field, "A new tip");
        stage.pump();
        CHECK(stage.paints() == 0);
    }
}
