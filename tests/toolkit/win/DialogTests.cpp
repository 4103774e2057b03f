/// Dialogs as a whole, in real windows: modal loops, focus, colours, and what handlers may do.

#include "tests/toolkit/win/Census.h"
#include "tests/toolkit/win/Stage.h"

#include "toolkit/ImplCommon/Exceptions.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <stdexcept>

using namespace NRDM;
using namespace NRDM::tests;

namespace {

/// A modal dialog with a number, a text and the two buttons.
struct Form {
    Stage stage;
    ADMDialogRef dialog = stage.modalDialog();
    ADMItemRef number = stage.addNumber(dialog, 4, kADMTextEditType, 10, 1, 100);
    ADMItemRef text = stage.add(dialog, 5, kADMTextEditType, "name");
    ADMItemRef ok = stage.add(dialog, 1, kADMTextPushButtonType, "OK");
    ADMItemRef cancel = stage.add(dialog, 2, kADMTextPushButtonType, "Cancel");
};

} // namespace

TEST_CASE("Tab goes through a modal dialog, access keys lead to fields and press buttons") {
    Form form;
    Stage& stage = form.stage;
    stage.add(form.dialog, 6, kADMTextStaticType, "&Angle:");
    ADMItemRef angle = stage.addNumber(form.dialog, 7, kADMTextEditType, 0, -360, 360);
    stage.add(form.dialog, 8, kADMTextCheckBoxType, "&Snap");
    std::vector<int> order;
    const auto note = [&] { order.push_back(Stage::activeId(form.dialog)); };
    const int result = stage.run(form.dialog, [&] {
        for (int i = 0; i < 6; ++i) {
            note();
            stage.key(VK_TAB);
        }
        stage.keyWith(VK_SHIFT, VK_TAB);
        note();
        stage.keyWith(VK_MENU, 'A');
        note();
        CHECK(GetFocus() == Stage::field(angle));
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

TEST_CASE("Tab, Escape and access keys reach the dialog from any control") {
    for (const char* const type : {kADMTextPushButtonType, kADMTextCheckBoxType, kADMSliderType,
                                   kADMPopupListType, kADMSpinEditType}) {
        INFO(std::string(type));
        Form form;
        Stage& stage = form.stage;
        ADMItemRef item = stage.add(form.dialog, 9, type);
        stage.add(form.dialog, 10, kADMTextCheckBoxType, "&Snap");
        const int result = stage.run(form.dialog, [&] {
            kItemSuite.Activate(item, true);
            stage.key(VK_TAB);
            CHECK(Stage::activeId(form.dialog) == 10);
            stage.keyWith(VK_SHIFT, VK_TAB);
            CHECK(Stage::activeId(form.dialog) == 9);
            stage.keyWith(VK_MENU, 'S');
            CHECK(Stage::activeId(form.dialog) == 10);
            kItemSuite.Activate(item, true);
            stage.key(VK_ESCAPE);
        });
        CHECK(result == 2);
    }
}

TEST_CASE("a modal dialog answers what ended it, the host disabled meanwhile") {
    Form form;
    Stage& stage = form.stage;
    ADMDialogRef palette = stage.dialog();
    stage.add(palette, 3, kADMTextCheckBoxType, "Box");
    stage.show(palette);
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
             CHECK(Stage::shown(form.number) == L"12");
             static_cast<void>(stage.takeHeard());
             stage.key(VK_ESCAPE);
         },
         2,
         {"user 2 = 0"}},
        {"a click on Cancel",
         [&] { stage.clickMiddle(Stage::window(form.cancel)); },
         2,
         {"user 2 = 0"}},
        {"the close box",
         [&] { PostMessageW(Stage::window(form.dialog), WM_CLOSE, 0, 0); },
         2,
         {"user 2 = 0"}},
    };
    for (const auto& row : rows) {
        INFO(std::string(row.what));
        const auto checkOthers = [&](bool enabled) {
            CHECK((IsWindowEnabled(stage.host.window) != FALSE) == enabled);
            CHECK((IsWindowEnabled(Stage::window(palette)) != FALSE) == enabled);
        };
        const int answer = stage.run(form.dialog, [&] {
            checkOthers(false);
            row.act();
        });
        CHECK(answer == row.result);
        CHECK(stage.takeHeard() == row.told);
        checkOthers(true);
        CHECK(kDialogSuite.IsVisible(form.dialog) == 0);
    }
}

TEST_CASE("a dialog keeps to the middle of the screen until it has been shown") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    const auto place = [&] {
        RECT bounds{};
        GetWindowRect(Stage::window(dialog), &bounds);
        return bounds;
    };
    const RECT first = place();
    kDialogSuite.Size(dialog, 360, 260);
    const RECT grown = place();
    CHECK(grown.right - grown.left == first.right - first.left + 40);
    CHECK(std::abs(grown.left + grown.right - first.left - first.right) <= 2);
    CHECK(std::abs(grown.top + grown.bottom - first.top - first.bottom) <= 2);
    kDialogSuite.Show(dialog, true);
    kDialogSuite.Size(dialog, 320, 240);
    CHECK(place().left == grown.left); // the corner stays where the user has seen it
    CHECK(place().top == grown.top);
}

TEST_CASE("an open dialog takes on the host's new colours, and keeps what is typed") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef field = stage.add(dialog, 4, kADMTextEditType, "name");
    stage.show(dialog);
    kItemSuite.Activate(field, true);
    stage.pump();
    stage.type(L"new");
    const COLORREF before = pixelOf(Stage::window(dialog), {300, 230});
    Theme dark;
    dark.background = {1, 0.2F, 0.2F, 0.2F};
    dark.editBackground = {1, 0.1F, 0.1F, 0.1F};
    dark.dark = true;
    stage.setTheme(dark);
    CHECK(before == RGB(214, 214, 214));
    CHECK(pixelOf(Stage::window(dialog), {300, 230}) == RGB(51, 51, 51));
    CHECK(pixelOf(Stage::window(field), {3, 11}) == RGB(26, 26, 26));
    CHECK(Stage::shown(field) == L"new");
    CHECK(GetFocus() == Stage::field(field));
}

TEST_CASE("a handler may close its dialog, and what it throws is told once and goes no further") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    ADMItemRef box = stage.add(dialog, 3, kADMTextCheckBoxType, "Active");
    ADMItemRef button = stage.add(dialog, 4, kADMTextPushButtonType, "Close");
    kItemSuite.SetNotifyProc(
        box, [](ADMItemRef, ADMNotifierRef) { throw std::runtime_error("a handler's own"); });
    kItemSuite.SetNotifyProc(button, [](ADMItemRef item, ADMNotifierRef) {
        kDialogSuite.Destroy(kItemSuite.GetDialog(item));
    });
    stage.show(dialog);
    stage.clickMiddle(Stage::window(box));
    CHECK(stage.failures == 1);
    stage.clickMiddle(Stage::window(button));
    CHECK(stage.dialogs->open().empty());
    CHECK(stage.failures == 1);
}

TEST_CASE("a function that is not offered, called from a handler, is reported and ends the loop") {
    Form form;
    kItemSuite.SetNotifyProc(
        form.ok, [](ADMItemRef item, ADMNotifierRef) { kItemSuite.SetNextFocus(item, item); });
    CHECK_THROWS_WITH_AS(
        form.stage.run(form.dialog, [&] { form.stage.clickMiddle(Stage::window(form.ok)); }),
        "NRDM: Function not implemented", NRDMNotImpl);
    CHECK(form.stage.failures == 0); // its caller was told
    CHECK(IsWindowEnabled(form.stage.host.window) != FALSE);
}

TEST_CASE("a client draws on a device context of its own") {
    Stage stage;
    ADMDialogRef dialog = stage.dialog();
    stage.show(dialog);
    const HWND window = Stage::window(dialog);
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

TEST_CASE("a dialog with every type of item leaves nothing of the system's behind") {
    constexpr const char* kTypes[] = {kADMTextPushButtonType,
                                      kADMPicturePushButtonType,
                                      kADMTextCheckBoxType,
                                      kADMTextRadioButtonType,
                                      kADMTextStaticType,
                                      kADMPictureStaticType,
                                      kADMTextEditType,
                                      kADMTextEditPopupType,
                                      kADMSpinEditType,
                                      kADMSpinEditPopupType,
                                      kADMPopupSpinEditControlType,
                                      kADMPopupControlType,
                                      kADMFrameType,
                                      kADMSliderType,
                                      kADMListBoxType,
                                      kADMPopupListType,
                                      kADMPopupMenuType,
                                      kADMUserType};
    Stage stage;
    checkLeavesNothing("dialog", 24, [&] {
        ADMDialogRef dialog = stage.dialog();
        int id = 0;
        for (const char* const type : kTypes) {
            ADMItemRef item = stage.add(dialog, ++id, type, "&Item");
            kItemSuite.SetPictureID(item, 2106, nullptr);
            kItemSuite.SetTipString(item, "What this does");
            if (ADMListRef list = kItemSuite.GetList(item))
                kListSuite.SetMenuID(list, nullptr, 700, nullptr);
        }
        stage.show(dialog);
        kDialogSuite.Destroy(dialog);
        stage.pump();
    });
}
