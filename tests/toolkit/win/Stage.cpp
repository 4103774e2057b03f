#include "tests/toolkit/win/Stage.h"

#include "tests/toolkit/win/OddHost.h"

#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/ImplWin/WindowClass.h"

#include <array>
#include <cstdio>

namespace NRDM::tests {
Stage::Stage() {
    offerOddSuites(host.window);
    dialogs.emplace(themes, makePeers, this);
}

Stage::~Stage() {
    dialogs.reset();
    ai::basicSuite = nullptr;
}

std::unique_ptr<Peers> Stage::makePeers(void* stage) {
    auto& self = *static_cast<Stage*>(stage);
    auto peers = std::make_unique<WinPeers>(self.themes, picturesOf(WindowClass::library()));
    peers->screen().fixedScale = Scale{1.0};
    peers->screen().failed = [&self] { ++self.failures; };
    return peers;
}

ADMDialogRef Stage::dialog() {
    constexpr ADMDialogStyle kFloating = 2;
    return make(kFloating);
}

ADMDialogRef Stage::modalDialog() { return make(kADMModalDialogStyle); }

ADMDialogRef Stage::make(ADMDialogStyle style) {
    rows_ = 0;
    ADMDialogRef made = kDialogSuite.Create(nullptr, "Stage", 0, style, nullptr, this, 0);
    kDialogSuite.Size(made, 320, 240);
    return made;
}

ADMItemRef Stage::add(ADMDialogRef dialog, int id, const char* type, const char* text) {
    const int top = 10 + 30 * rows_++;
    const ADMRect place{20, top, 120, top + 22};
    ADMItemRef item = kDialogSuite.CreateItem(dialog, id, type, &place, nullptr, nullptr, 0);
    kItemSuite.SetText(item, text);
    kItemSuite.SetNotifyProc(item, itemHears);
    return item;
}

ADMItemRef Stage::addNumber(ADMDialogRef dialog, int id, const char* type, float value,
                            float lowest, float highest) {
    ADMItemRef item = add(dialog, id, type);
    kItemSuite.SetMinFloatValue(item, lowest);
    kItemSuite.SetMaxFloatValue(item, highest);
    kItemSuite.SetFloatValue(item, value);
    return item;
}

void Stage::itemHears(ADMItemRef item, ADMNotifierRef notifier) {
    ADMDialogRef dialog = kItemSuite.GetDialog(item);
    auto& self = *static_cast<Stage*>(kDialogSuite.GetUserData(dialog));
    const bool complete = kNotifierSuite.IsNotifierType(notifier, kADMUserChangedNotifier) != 0;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s %d = %g", complete ? "user" : "moving",
                  kItemSuite.GetID(item), static_cast<double>(kItemSuite.GetFloatValue(item)));
    self.heard_.emplace_back(text.data());
    kItemSuite.DefaultNotify(item, notifier);
}

void Stage::show(ADMDialogRef dialog) {
    kDialogSuite.Show(dialog, true);
    kDialogSuite.Activate(dialog, true);
    pump();
    SetForegroundWindow(window(dialog));
    pump();
}

int Stage::run(ADMDialogRef dialog, std::function<void()> act) {
    soon(std::move(act));
    return kDialogSuite.DisplayAsModal(dialog);
}

HWND Stage::window(ADMDialogRef dialog) {
    return static_cast<HWND>(kDialogSuite.GetWindowRef(dialog));
}

HWND Stage::window(ADMItemRef item) { return static_cast<HWND>(kItemSuite.GetWindowRef(item)); }

HWND Stage::field(ADMItemRef item) {
    return FindWindowExW(window(item), nullptr, L"EDIT", nullptr);
}

std::wstring Stage::shown(ADMItemRef item) {
    std::array<wchar_t, 256> text{};
    GetWindowTextW(field(item), text.data(), static_cast<int>(text.size()));
    return text.data();
}

int Stage::activeId(ADMDialogRef dialog) {
    for (ADMItemRef item = kDialogSuite.GetItem(dialog, kADMFirstItemID); item != nullptr;
         item = kDialogSuite.GetNextItem(dialog, item))
        if (kItemSuite.IsActive(item) != 0) return kItemSuite.GetID(item);
    return 0;
}

void Stage::setTheme(const Theme& changed) {
    themes = {changed, changed};
    dialogs->themeChanged();
    pump();
}

} // namespace NRDM::tests
