#include "tests/toolkit/win/Stage.h"

#include "host/suites/AIAppContextSuite.h"
#include "host/suites/SPAccessSuite.h"
#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/ImplWin/WindowClass.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace NRDM::tests {
namespace {

/// Of the stage that there is; the host's functions are told nothing else.
HWND hostWindow = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

SPErr resourcesInProgram(SPPluginRef, SPPlatformAccessRef* library) {
    *library = nullptr;
    return kNoErr;
}
AIErr appWindow(AIWindowRef* window) {
    *window = reinterpret_cast<AIWindowRef>(hostWindow);
    return kNoErr;
}

template <typename Suite, auto Slot, auto Function> constexpr Suite withOne() {
    Suite functions{};
    functions.*Slot = Function;
    return functions;
}
constexpr auto kAccess =
    withOne<SPAccessSuite, &SPAccessSuite::GetPluginResourceAccess, resourcesInProgram>();
constexpr auto kContext =
    withOne<AIAppContextSuite, &AIAppContextSuite::GetPlatformAppWindow, appWindow>();

SPErr acquire(const char* name, ai::int32, const void** functions) {
    const std::string_view wanted = name;
    *functions = wanted == kSPAccessSuite       ? static_cast<const void*>(&kAccess)
                 : wanted == kAIAppContextSuite ? &kContext
                                                : nullptr;
    return *functions != nullptr ? kNoErr : kNotImplementedErr;
}
SPErr release(const char*, ai::int32) { return kNoErr; }

constexpr SPBasicSuite basicSuite() {
    SPBasicSuite functions{};
    functions.AcquireSuite = acquire;
    functions.ReleaseSuite = release;
    return functions;
}
constexpr SPBasicSuite kBasic = basicSuite();

} // namespace

Stage::Stage() {
    hostWindow = host.window;
    ai::basicSuite = offeringSuites(&kBasic);
    dialogs.emplace(themes, makePeers, this);
}

Stage::~Stage() {
    dialogs.reset();
    ai::basicSuite = nullptr;
    hostWindow = nullptr;
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
