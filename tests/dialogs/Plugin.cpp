/// A plug-in with a panel and dialogs that hold an item of every kind. It writes down what they are
/// told, where scripts can read it: "ID=TEXT" is a change by the user, "ID~TEXT" one in progress.

#include "host/Error.h"
#include "host/MessageNames.h"
#include "host/Messages.h"
#include "host/SuiteHolder.h"
#include "host/UnicodeString.h"
#include "host/suites/AIMenuSuite.h"
#include "toolkit/SuiteTables.h"
#include "toolkit/Toolkit.h"
#include "toolkit/suites/ADMDialogSuite.h"
#include "toolkit/suites/ADMEntrySuite.h"
#include "toolkit/suites/ADMItemSuite.h"
#include "toolkit/suites/ADMListSuite.h"
#include "toolkit/suites/ADMNotifierSuite.h"

#include <array>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

struct Suites {
    Suites() {
        ai::check(ofHost.acquire());
        ai::check(dialog.acquire());
        ai::check(item.acquire());
        ai::check(list.acquire());
        ai::check(entry.acquire());
        ai::check(notifier.acquire());
    }
    ai::SuiteHolder ofHost;
    ai::SuiteLease<ADMDialogSuite> dialog;
    ai::SuiteLease<ADMItemSuite> item;
    ai::SuiteLease<ADMListSuite> list;
    ai::SuiteLease<ADMEntrySuite> entry;
    ai::SuiteLease<ADMNotifierSuite> notifier;
};

enum Id : ADMInt32 {
    kOk = 1,
    kCancel = 2,
    kActive = 3,
    kAsk = 4,
    kSelection = 5,
    kLayer = 6,
    kXLabel = 8,
    kX = 9,
    kName = 13,
    kCount = 15,
    kOpacity = 18,
    kPercent = 20,
    kFigures = 30,
    kRows = 31,
    kColour = 32,
    kDisabled = 40,
    kHidden = 41,
    kCutOff = 42,
    kForget = 50,
    kMore = 51,
    kThrow = 52,
    kJournal = 60,
};

/// All there is of an item before it is told anything.
struct Row {
    Id id;
    const char* type;
    ADMRect place;
    const char* text = "";
};

constexpr Row kPanelItems[] = {
    {kActive, kADMTextCheckBoxType, {10, 10, 90, 24}, "Active"},
    {kAsk, kADMTextPushButtonType, {100, 8, 190, 30}, "&Ask..."},
    {kSelection, kADMTextRadioButtonType, {10, 30, 90, 44}, "Selection"},
    {kLayer, kADMTextRadioButtonType, {10, 48, 90, 62}, "Layer"},
    {kXLabel, kADMTextStaticType, {100, 38, 120, 52}, "X:"},
    {kX, kADMTextEditType, {122, 34, 190, 54}},
    {kName, kADMTextEditType, {122, 58, 190, 78}},
    {kCount, kADMSpinEditType, {10, 70, 60, 90}},
    {kOpacity, kADMSliderType, {10, 96, 112, 112}},
    {kPercent, kADMSpinEditType, {122, 96, 190, 116}},
    {kFigures, kADMSpinEditPopupType, {10, 120, 90, 140}},
    {kColour, kADMPopupListType, {100, 120, 190, 140}},
    {kRows, kADMListBoxType, {10, 146, 90, 200}},
    {kDisabled, kADMTextPushButtonType, {100, 146, 190, 166}, "Disabled"},
    {kHidden, kADMTextPushButtonType, {100, 170, 190, 190}, "Hidden"},
    {kForget, kADMTextPushButtonType, {100, 194, 190, 214}, "Forget"},
    {kThrow, kADMTextPushButtonType, {10, 204, 90, 224}, "Throw"},
    {kJournal, kADMTextStaticType, {10, 230, 190, 246}},
    {kCutOff, kADMTextPushButtonType, {10, 260, 90, 280}, "Cut Off"},
};
constexpr ADMRect kPanelPlace{0, 0, 200, 250};

constexpr Row kQuestionItems[] = {
    {kName, kADMTextEditType, {10, 10, 110, 30}},
    {kFigures, kADMSpinEditPopupType, {10, 36, 110, 56}},
    {kActive, kADMTextCheckBoxType, {10, 62, 110, 76}, "&Keep"},
    {kMore, kADMTextPushButtonType, {120, 10, 200, 30}, "More..."},
    {kThrow, kADMTextPushButtonType, {120, 36, 200, 56}, "Throw"},
    {kCancel, kADMTextPushButtonType, {10, 86, 90, 106}, "Cancel"},
    {kOk, kADMTextPushButtonType, {120, 86, 200, 106}, "OK"},
};
constexpr Row kMoreItems[] = {
    {kOk, kADMTextPushButtonType, {120, 86, 200, 106}, "OK"},
};

class Plugin {
public:
    explicit Plugin(SPPluginRef self);
    ~Plugin() {
        if (panel_ != nullptr) suites.dialog->Destroy(panel_);
    }
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    void ask();
    void chosen(AIMenuItemHandle item) {
        if (item == menuItem_) ask();
    }
    void notified(AINotifierHandle notifier) { toolkit.serve(notifier); }

    /// The item's notify procedure.
    void hear(ADMItemRef item, ADMNotifierRef notifier);
    void note(const std::string& line);

    NRDM::Toolkit toolkit;
    Suites suites;

private:
    template <std::size_t N> void make(ADMDialogRef dialog, const Row (&rows)[N]);
    void fillLists(ADMDialogRef dialog);
    void open(const char* title, ADMDialogInitProc fill);

    SPPluginRef self_;
    ADMDialogRef panel_ = nullptr;
    AIMenuItemHandle menuItem_ = nullptr;
    std::string journal_;
    bool copied_ = false;
};

Plugin* plugin = nullptr;

void hearItem(ADMItemRef item, ADMNotifierRef notifier) { plugin->hear(item, notifier); }

/// What a handler lets out where no loop runs.
void failed() noexcept { plugin->note("failed"); }

template <std::size_t N> void Plugin::make(ADMDialogRef dialog, const Row (&rows)[N]) {
    for (const Row& row : rows) {
        const ADMItemRef item =
            suites.dialog->CreateItem(dialog, row.id, row.type, &row.place, nullptr, nullptr, 0);
        if (*row.text != 0) suites.item->SetText(item, row.text);
        suites.item->SetNotifyProc(item, hearItem);
    }
    const ADMItemRef count = suites.dialog->GetItem(dialog, kFigures);
    if (count == nullptr) return;
    suites.item->SetMinIntValue(count, 1);
    suites.item->SetMaxIntValue(count, 72);
    suites.item->SetIntValue(count, 3);
    fillLists(dialog);
}

void Plugin::fillLists(ADMDialogRef dialog) {
    static constexpr const char* kFigureTexts[] = {"1", "2", "3", "4", "5", "6"};
    static constexpr const char* kColours[] = {"Red", "Green", "Blue"};
    const auto fill = [&](Id id, const auto& texts) {
        const ADMItemRef item = suites.dialog->GetItem(dialog, id);
        if (item == nullptr) return;
        const ADMListRef list = suites.item->GetList(item);
        for (const char* const text : texts)
            suites.entry->SetText(
                suites.list->InsertEntry(list, suites.list->NumberOfEntries(list)), text);
        if (id == kFigures) return;
        suites.entry->Select(suites.list->IndexEntry(list, 0), 1);
        suites.entry->Enable(suites.list->IndexEntry(list, 1), 0);
    };
    fill(kFigures, kFigureTexts);
    fill(kColour, kColours);
    fill(kRows, kColours);
}

Plugin::Plugin(SPPluginRef self) : toolkit(self, failed), self_(self) {
    plugin = this;
    AIPlatformAddMenuItemDataUS data{"About", ai::UnicodeString(std::string_view("Ask..."))};
    ai::check(ai::suites.menu->AddMenuItem(self, "Ask", &data, kMenuItemNoOptions, &menuItem_));
    panel_ =
        suites.dialog->Create(self, "Items", 0, kADMTabbedFloatingDialogStyle, nullptr, nullptr, 0);
    suites.dialog->SetDestroyProc(panel_, [](ADMDialogRef) { plugin->panel_ = nullptr; });
    suites.dialog->Size(panel_, kPanelPlace.right, kPanelPlace.bottom);
    make(panel_, kPanelItems);
    const auto item = [&](Id id) { return suites.dialog->GetItem(panel_, id); };
    suites.item->SetTipString(item(kAsk), "Asks a question");
    suites.item->SetTipString(item(kDisabled), "Does nothing & more");
    suites.item->Enable(item(kDisabled), 0);
    suites.item->Show(item(kHidden), 0);
    suites.item->SetBooleanValue(item(kSelection), 1);
    suites.item->SetUnits(item(kX), kADMPointUnits);
    suites.item->SetPrecision(item(kX), 3);
    suites.item->SetMinFloatValue(item(kX), -100);
    suites.item->SetMaxFloatValue(item(kX), 100);
    suites.item->SetFloatValue(item(kX), 12.5F);
    for (const Id each : {kOpacity, kPercent}) {
        suites.item->SetMinFloatValue(item(each), 0);
        suites.item->SetMaxFloatValue(item(each), 100);
        suites.item->SetPrecision(item(each), 0);
        suites.item->SetFloatValue(item(each), 50);
    }
    suites.item->SetUnits(item(kPercent), kADMPercentUnits);
    for (const Id each : {kX, kPercent})
        suites.item->ShowUnits(item(each), 1);
    suites.item->SetMinIntValue(item(kCount), 1);
    suites.item->SetMaxIntValue(item(kCount), 72);
    suites.item->SetIntValue(item(kCount), 5);
    const ADMItemRef menu = suites.dialog->GetItem(panel_, kADMMenuItemID);
    const ADMListRef list = suites.item->GetList(menu);
    for (const char* const text : {"Copy", "-", "Paste"}) {
        const ADMEntryRef entry =
            suites.list->InsertEntry(list, suites.list->NumberOfEntries(list));
        if (*text == '-')
            suites.entry->MakeSeparator(entry, 1);
        else
            suites.entry->SetText(entry, text);
    }
    suites.item->SetNotifyProc(menu, [](ADMItemRef of, ADMNotifierRef notifier) {
        plugin->suites.item->DefaultNotify(of, notifier);
        const ADMListRef entries = plugin->suites.item->GetList(of);
        const ADMEntryRef chosenEntry = plugin->suites.list->GetActiveEntry(entries);
        std::array<char, 32> text{};
        plugin->suites.entry->GetText(chosenEntry, text.data(), text.size());
        plugin->copied_ = std::string_view(text.data()) == "Copy";
        plugin->note(std::string("menu=") + text.data());
    });
    suites.item->SetTrackProc(menu, [](ADMItemRef of, ADMTrackerRef) -> ADMBoolean {
        const ADMListRef entries = plugin->suites.item->GetList(of);
        plugin->suites.entry->Check(plugin->suites.list->IndexEntry(entries, 0), plugin->copied_);
        plugin->suites.entry->Enable(plugin->suites.list->IndexEntry(entries, 2), plugin->copied_);
        return 0;
    });
}

void Plugin::open(const char* title, ADMDialogInitProc fill) {
    const ADMInt32 result =
        suites.dialog->Modal(self_, title, 0, kADMModalDialogStyle, fill, nullptr, 0);
    note(std::string(title) + " ended with " + std::to_string(result));
}

void Plugin::ask() {
    open("Question", [](ADMDialogRef dialog) -> ADMErr {
        plugin->suites.dialog->Size(dialog, 210, 116);
        plugin->make(dialog, kQuestionItems);
        return kNoErr;
    });
}

void Plugin::note(const std::string& line) {
    if (panel_ == nullptr) return;
    journal_ += (journal_.empty() ? "" : " ") + line;
    suites.item->SetText(suites.dialog->GetItem(panel_, kJournal), journal_.c_str());
}

void Plugin::hear(ADMItemRef item, ADMNotifierRef notifier) {
    suites.item->DefaultNotify(item, notifier);
    const bool whole = suites.notifier->IsNotifierType(notifier, kADMUserChangedNotifier) != 0;
    const bool partly =
        suites.notifier->IsNotifierType(notifier, kADMIntermediateChangedNotifier) != 0;
    if (!whole && !partly) return;
    const ADMInt32 id = suites.item->GetID(item);
    if (id == kForget) {
        journal_.clear();
        return suites.item->SetText(suites.dialog->GetItem(panel_, kJournal), "");
    }
    std::array<char, 64> text{};
    suites.item->GetText(item, text.data(), text.size());
    if (id == kOpacity || id == kActive)
        std::snprintf(text.data(), text.size(), "%g",
                      static_cast<double>(suites.item->GetFloatValue(item)));
    note(std::to_string(id) + (whole ? "=" : "~") + text.data());
    if (id == kAsk) ask();
    if (id == kThrow) throw std::runtime_error("thrown by a handler");
    if (id != kMore) return;
    open("More", [](ADMDialogRef dialog) -> ADMErr {
        plugin->make(dialog, kMoreItems);
        return kNoErr;
    });
}

std::unique_ptr<Plugin> running;

SPErr handle(std::string_view caller, std::string_view selector, void* message) {
    const auto is = [&](const char* aCaller, const char* aSelector) {
        return caller == aCaller && selector == aSelector;
    };
    SPMessageData& data = *static_cast<SPMessageData*>(message);
    if (is(kCallerInterface, kSelectorStartup)) running = std::make_unique<Plugin>(data.self);
    if (is(kCallerInterface, kSelectorShutdown)) running.reset();
    if (!running) return kNoErr;
    if (is(kCallerMenu, kSelectorGo))
        running->chosen(static_cast<AIMenuMessage*>(message)->menuItem);
    if (caller == kCallerNotifier)
        running->notified(static_cast<AINotifierMessage*>(message)->notifier);
    return kNoErr;
}

} // namespace

extern "C" SPErr PluginMain(const char* caller, const char* selector, void* message) {
    ai::basicSuite = NRDM::offeringSuites(static_cast<SPMessageData*>(message)->basic);
    return ai::codeOf([&] { return handle(caller, selector, message); });
}
