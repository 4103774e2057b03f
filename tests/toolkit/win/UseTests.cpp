/// Dialogs as their clients make them, used by a hand: what the user does arrives at the client as
/// the right notification with the right value.

#include "tests/toolkit/win/ModelStage.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

constexpr ADMDialogStyle kFloating = 2;

/// A modal dialog with a number, a text and the two buttons.
struct Form {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kADMModalDialogStyle);
    ADMItemRef number = stage.addNumber(dialog, 4, kADMTextEditType, 10, 1, 100);
    ADMItemRef text = stage.add(dialog, 5, kADMTextEditType, "name");
    ADMItemRef ok = stage.add(dialog, 1, kADMTextPushButtonType, "OK");
    ADMItemRef cancel = stage.add(dialog, 2, kADMTextPushButtonType, "Cancel");
};

POINT arrowOf(HWND field, bool up) {
    RECT area{};
    GetClientRect(field, &area);
    return {area.right - 8, up ? 5 : area.bottom - 5};
}

} // namespace

TEST_CASE("numbers are typed with units and sums, and refused beyond the limits") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef field = stage.addNumber(dialog, 4, kADMTextEditType, 100, -1000, 1000);
    kItemSuite.SetUnits(field, kADMPointUnits);
    kItemSuite.SetPrecision(field, 3);
    kItemSuite.ShowUnits(field, true);
    stage.add(dialog, 5, kADMTextEditType);
    stage.show(dialog);
    struct Row {
        std::wstring typed;
        std::wstring shown;
        Log told; ///< of what is complete
    };
    const Row rows[] = {
        {L"1 in", L"72.000 pt", {"user 4 = 72"}},
        {L"10+5 mm", L"24.173 pt", {"user 4 = 24.173"}},
        {L"3*(4+2)", L"18.000 pt", {"user 4 = 18"}},
        {L"150%", L"150.000 pt", {"user 4 = 150"}},
        {L"1001", L"100.000 pt", {}},
        {L"-1000.5", L"100.000 pt", {}},
        {L"nonsense", L"100.000 pt", {}},
        {L"100.000", L"100.000 pt", {}},
    };
    for (const auto& row : rows) {
        INFO(std::string(row.typed.begin(), row.typed.end()));
        kItemSuite.SetFloatValue(field, 100);
        kItemSuite.Activate(field, true);
        stage.pump();
        kItemSuite.SelectAll(field);
        static_cast<void>(stage.takeHeard());
        stage.type(row.typed);
        Log heard = stage.takeHeard();
        CHECK(std::ranges::count(heard, "moving 4 = 100") == std::ssize(heard));
        CHECK(heard.size() == row.typed.size());
        stage.key(VK_RETURN);
        CHECK(stage.takeHeard() == row.told);
        CHECK(ModelStage::shown(field) == row.shown);
        // What was refused keeps the focus.
        stage.key(VK_ESCAPE);
    }
    CHECK(stage.failures == 0);
}

TEST_CASE("an arrow that is held counts up to the limit and tells the end once") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef field = stage.addNumber(dialog, 4, kADMSpinEditType, 1, 1, 4);
    stage.show(dialog);
    stage.press(ModelStage::window(field), arrowOf(ModelStage::window(field), true));
    CHECK(stage.takeHeard() == Log{"moving 4 = 2"});
    for (int waits = 0; waits < 40 && kItemSuite.GetFloatValue(field) < 4; ++waits)
        stage.pump(50);
    stage.pump(200); // it goes on being held
    CHECK(stage.takeHeard() == Log{"moving 4 = 3", "moving 4 = 4"});
    stage.release();
    CHECK(stage.takeHeard() == Log{"user 4 = 4"});
    CHECK(ModelStage::shown(field) == L"4");
    stage.move(ModelStage::window(field), {20, 10});
    kItemSuite.Activate(field, true);
    stage.wheel(-1);
    CHECK(stage.takeHeard() == Log{"user 4 = 3"});
    stage.key(VK_DOWN);
    CHECK(stage.takeHeard() == Log{"user 4 = 2"});
}

TEST_CASE("a slider tells its way and then its end, and carries a field along in silence") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef slider = stage.addNumber(dialog, 4, kADMSliderType, 0, 0, 100);
    ADMItemRef field = stage.addNumber(dialog, 5, kADMSpinEditType, 0, 0, 100);
    kItemSuite.SetNotifyProc(slider, [](ADMItemRef item, ADMNotifierRef notifier) {
        ADMItemRef other = kDialogSuite.GetItem(kItemSuite.GetDialog(item), 5);
        kItemSuite.SetFloatValue(other, kItemSuite.GetFloatValue(item));
        auto& heard = *static_cast<Log*>(kItemSuite.GetUserData(item));
        heard.emplace_back(
            kNotifierSuite.IsNotifierType(notifier, kADMUserChangedNotifier) ? "user" : "moving");
    });
    Log heard;
    kItemSuite.SetUserData(slider, &heard);
    stage.show(dialog);
    const HWND window = ModelStage::window(slider);
    stage.press(window, {8, 11});
    stage.move(window, {30, 11});
    stage.move(window, {60, 11});
    const float before = kItemSuite.GetFloatValue(slider);
    CHECK(before > 0);
    stage.move(window, {200, 11});
    stage.release();
    CHECK(heard == Log{"moving", "moving", "moving", "user"});
    CHECK(kItemSuite.GetFloatValue(slider) == 100);
    CHECK(ModelStage::shown(field) == L"100");
    CHECK(stage.takeHeard().empty()); // the field was set by code
}

TEST_CASE("entries are chosen from lists, and from a menu resource beside a field") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef list = stage.add(dialog, 4, kADMPopupListType);
    for (const char* const text : {"One", "Two", "Three"})
        kEntrySuite.SetText(kListSuite.InsertEntry(kItemSuite.GetList(list), 99), text);
    ADMItemRef count = stage.addNumber(dialog, 11, kADMSpinEditPopupType, 3, 1, 72);
    kListSuite.SetMenuID(kItemSuite.GetList(count), nullptr, 700, nullptr);
    stage.show(dialog);
    const auto window = static_cast<HWND>(kDialogSuite.GetWindowRef(dialog));
    const auto clickLast = [&] {
        const HWND popup = popupOf(window);
        REQUIRE(popup != nullptr);
        RECT area{};
        GetClientRect(popup, &area);
        stage.click(popup, {20, area.bottom - 10});
        CHECK(popupOf(window) == nullptr);
    };
    stage.clickMiddle(ModelStage::window(list));
    clickLast();
    CHECK(stage.takeHeard() == Log{"user 4 = 0"});
    CHECK(kEntrySuite.GetIndex(kListSuite.GetActiveEntry(kItemSuite.GetList(list))) == 2);
    const HWND field = ModelStage::window(count);
    stage.click(field, arrowOf(field, true));
    clickLast();
    CHECK(stage.takeHeard() == Log{"user 11 = 6"});
    CHECK(ModelStage::shown(count) == L"6");
}

TEST_CASE("a menu shows what its resource and its client say, and gives back what is chosen") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef menu = stage.add(dialog, 4, kADMPopupMenuType, "Axes");
    ADMListRef list = kItemSuite.GetList(menu);
    kListSuite.SetMenuID(list, nullptr, 700, nullptr);
    REQUIRE(kListSuite.NumberOfEntries(list) == 6);
    kEntrySuite.Enable(kListSuite.IndexEntry(list, 1), false);
    kEntrySuite.MakeSeparator(kListSuite.IndexEntry(list, 2), true);
    stage.show(dialog);
    stage.move(static_cast<HWND>(kDialogSuite.GetWindowRef(dialog)), {300, 230});
    kItemSuite.Activate(menu, true);
    stage.pump();
    const auto choose = [&](const std::vector<WORD>& keys) {
        stage.useMenu([&] { stage.key(VK_SPACE); }, keys);
        ADMEntryRef chosen = kListSuite.GetActiveEntry(list);
        return chosen != nullptr ? kEntrySuite.GetIndex(chosen) : -1;
    };
    CHECK(choose({VK_ESCAPE}) == -1);
    CHECK(stage.takeHeard().empty());
    // The first, the disabled one, past the line: the fourth.
    CHECK(choose({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}) == 3);
    CHECK(stage.takeHeard() == Log{"user 4 = 0"});
}

TEST_CASE("Tab goes through a modal dialog, access keys lead to fields and press buttons") {
    Form form;
    ModelStage& stage = form.stage;
    ADMItemRef label = stage.add(form.dialog, 6, kADMTextStaticType, "&Angle:");
    ADMItemRef angle = stage.addNumber(form.dialog, 7, kADMTextEditType, 0, -360, 360);
    stage.add(form.dialog, 8, kADMTextCheckBoxType, "&Snap");
    CHECK(kItemSuite.IsEnabled(label));
    std::vector<int> order;
    const int result = stage.run(form.dialog, [&] {
        for (int i = 0; i < 6; ++i) {
            order.push_back(ModelStage::activeId(form.dialog));
            stage.key(VK_TAB);
        }
        stage.keyWith(VK_SHIFT, VK_TAB);
        order.push_back(ModelStage::activeId(form.dialog));
        stage.keyWith(VK_MENU, 'A');
        order.push_back(ModelStage::activeId(form.dialog));
        CHECK(GetFocus() == ModelStage::field(angle));
        stage.keyWith(VK_MENU, 'S');
        CHECK(stage.takeHeard() == Log{"user 8 = 1"});
        stage.key(VK_SPACE); // the box has the focus now
        CHECK(stage.takeHeard() == Log{"user 8 = 0"});
        stage.key(VK_ESCAPE);
    });
    CHECK(order == std::vector{4, 5, 1, 2, 7, 8, 8, 7});
    CHECK(result == 2);
    CHECK(stage.failures == 0);
}

TEST_CASE("a modal dialog answers what ended it, the host disabled meanwhile") {
    Form form;
    ModelStage& stage = form.stage;
    ADMDialogRef palette = stage.dialog(kFloating);
    stage.add(palette, 3, kADMTextCheckBoxType, "Box");
    stage.show(palette);
    const auto paletteWindow = static_cast<HWND>(kDialogSuite.GetWindowRef(palette));
    struct Row {
        const char* what;
        std::function<void()> act;
        int result;
        Log told;
    };
    const Row rows[] = {
        {"Enter takes over what is typed, then presses the default button",
         [&] {
             stage.type(L"12");
             static_cast<void>(stage.takeHeard());
             stage.key(VK_RETURN);
         },
         1,
         {"user 4 = 12", "user 1 = 0"}},
        {"a number out of range keeps it open; Escape drops it",
         [&] {
             stage.type(L"500");
             stage.key(VK_RETURN);
             CHECK(ModelStage::shown(form.number) == L"12");
             static_cast<void>(stage.takeHeard());
             stage.key(VK_ESCAPE);
         },
         2,
         {"user 2 = 0"}},
        {"a click on Cancel",
         [&] { stage.clickMiddle(ModelStage::window(form.cancel)); },
         2,
         {"user 2 = 0"}},
        {"the close box",
         [&] {
             PostMessageW(static_cast<HWND>(kDialogSuite.GetWindowRef(form.dialog)), WM_CLOSE, 0,
                          0);
         },
         2,
         {"user 2 = 0"}},
    };
    for (const auto& row : rows) {
        INFO(std::string(row.what));
        const int answer = stage.run(form.dialog, [&] {
            CHECK(IsWindowEnabled(stage.host.window) == FALSE);
            CHECK(IsWindowEnabled(paletteWindow) == FALSE);
            row.act();
        });
        CHECK(answer == row.result);
        CHECK(stage.takeHeard() == row.told);
        CHECK(IsWindowEnabled(stage.host.window) != FALSE);
        CHECK(IsWindowEnabled(paletteWindow) != FALSE);
        CHECK(kDialogSuite.IsVisible(form.dialog) == 0);
    }
}

TEST_CASE("a click on a radio button switches its group, arrows go on in it") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef first = stage.add(dialog, 1, kADMTextRadioButtonType, "Each");
    ADMItemRef second = stage.add(dialog, 2, kADMTextRadioButtonType, "All");
    ADMItemRef other = stage.add(dialog, 4, kADMTextRadioButtonType, "Else");
    kItemSuite.SetBooleanValue(first, true);
    kItemSuite.SetBooleanValue(other, true);
    stage.show(dialog);
    const auto on = [&] {
        return std::vector{kItemSuite.GetBooleanValue(first) != 0,
                           kItemSuite.GetBooleanValue(second) != 0,
                           kItemSuite.GetBooleanValue(other) != 0};
    };
    stage.clickMiddle(ModelStage::window(second));
    CHECK(on() == std::vector{false, true, true});
    CHECK(stage.takeHeard() == Log{"user 2 = 1"});
    stage.clickMiddle(ModelStage::window(second)); // it is on
    CHECK(stage.takeHeard().empty());
    stage.key(VK_DOWN);
    CHECK(on() == std::vector{true, false, true});
    CHECK(stage.takeHeard() == Log{"user 1 = 1"});
}

TEST_CASE("an item's tip shows when the pointer rests on it, unless tips are switched off") {
    for (const bool enabled : {true, false}) {
        CAPTURE(enabled);
        ModelStage stage;
        ADMDialogRef dialog = stage.dialog(kFloating);
        ADMItemRef button = stage.add(dialog, 3, kADMTextPushButtonType, "Apply");
        kItemSuite.SetTipString(button, "Apply the symmetry axes to mirror the artwork");
        kBasicSuite.EnableToolTips(enabled);
        stage.show(dialog);
        const auto window = static_cast<HWND>(kDialogSuite.GetWindowRef(dialog));
        stage.move(window, {300, 230});
        stage.move(ModelStage::window(button), {30, 10});
        const auto isShown = [&] {
            const HWND tip = tipOf(window);
            return tip != nullptr && IsWindowVisible(tip) != FALSE;
        };
        for (int waits = 0; waits < 24 && !isShown(); ++waits)
            stage.pump(50);
        CHECK(isShown() == enabled);
    }
}

TEST_CASE("an open dialog takes on the host's new colours, and keeps what is typed") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef field = stage.add(dialog, 4, kADMTextEditType, "name");
    stage.show(dialog);
    const auto window = static_cast<HWND>(kDialogSuite.GetWindowRef(dialog));
    kItemSuite.Activate(field, true);
    stage.pump();
    stage.type(L"new");
    const COLORREF before = Stage::pixel(window, {300, 230});
    Theme dark;
    dark.background = {1, 0.2F, 0.2F, 0.2F};
    dark.editBackground = {1, 0.1F, 0.1F, 0.1F};
    dark.dark = true;
    stage.setTheme(dark);
    CHECK(before == RGB(214, 214, 214));
    CHECK(Stage::pixel(window, {300, 230}) == RGB(51, 51, 51));
    CHECK(Stage::pixel(ModelStage::window(field), {3, 11}) == RGB(26, 26, 26));
    CHECK(ModelStage::shown(field) == L"new");
    CHECK(GetFocus() == ModelStage::field(field));
}

TEST_CASE("what is drawn on an image shows where the image is drawn") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    ADMItemRef item = stage.add(dialog, 4, kADMUserType);
    ADMImageRef image = kImageSuite.Create(10, 6, 0);
    CHECK(kImageSuite.GetWidth(image) == 10);
    CHECK(kImageSuite.GetHeight(image) == 6);
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
    stage.show(dialog);
    const HWND window = ModelStage::window(item);
    const auto colour = [&](int x, int y) { return Stage::pixel(window, {x, y}); };
    const COLORREF ground = colour(40, 10);
    CHECK(colour(2, 3) == RGB(255, 0, 0));
    CHECK(colour(6, 8) == RGB(255, 0, 0));
    CHECK(colour(7, 8) == RGB(0, 0, 0));
    CHECK(colour(12, 8) == ground);
    CHECK(colour(55, 7) == RGB(255, 0, 0));
    CHECK(colour(64, 12) == RGB(0, 0, 0));
    CHECK(colour(64, 13) == ground);
    kImageSuite.Destroy(image);
    CHECK_THROWS_AS(kImageSuite.Create(0, 5, 0), NRDMParameterException);
}

TEST_CASE("a client draws on a device context of its own") {
    ModelStage stage;
    ADMDialogRef dialog = stage.dialog(kFloating);
    stage.show(dialog);
    const auto window = static_cast<HWND>(kDialogSuite.GetWindowRef(dialog));
    const HDC port = GetDC(window);
    const ADMRect area{100, 100, 120, 110};
    ADMDrawerRef drawer = kDrawerSuite.Create(port, &area, kADMDialogFont);
    const ADMRGBColor red{65535, 0, 0};
    kDrawerSuite.SetRGBColor(drawer, &red);
    const ADMRect half{0, 0, 10, 10};
    kDrawerSuite.FillRect(drawer, &half);
    const COLORREF ground = GetPixel(port, 100, 100); // it appears at the end
    kDrawerSuite.Destroy(drawer);
    CHECK(ground == RGB(214, 214, 214));
    CHECK(GetPixel(port, 100, 100) == RGB(255, 0, 0));
    CHECK(GetPixel(port, 109, 109) == RGB(255, 0, 0));
    CHECK(GetPixel(port, 110, 100) == ground);
    ReleaseDC(window, port);
    CHECK_THROWS_AS(kDrawerSuite.Destroy(drawer), NRDMParameterException);
    CHECK_THROWS_AS(kDrawerSuite.Create(nullptr, &area, kADMDialogFont), NRDMParameterException);
}

TEST_CASE("a function that is not offered, called from a handler, is reported and ends the loop") {
    Form form;
    kItemSuite.SetNotifyProc(
        form.ok, [](ADMItemRef item, ADMNotifierRef) { kItemSuite.SetNextFocus(item, item); });
    CHECK_THROWS_WITH_AS(
        form.stage.run(form.dialog, [&] { form.stage.clickMiddle(ModelStage::window(form.ok)); }),
        "NRDM: Function not implemented", NRDMNotImpl);
    CHECK(form.stage.failures == 0); // its caller was told
    CHECK(IsWindowEnabled(form.stage.host.window) != FALSE);
}
