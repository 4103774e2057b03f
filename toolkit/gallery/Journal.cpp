#include "toolkit/gallery/Journal.h"

#include "toolkit/suites/ADMNotifierSuite.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace NRDM::gallery {
namespace {

constexpr std::size_t kLongest = 256;

/// What a suite's function writes for `object`.
template <typename Get, typename Object> std::string textOf(Get get, Object object) {
    std::array<char, kLongest> text{};
    get(object, text.data(), static_cast<ADMInt32>(text.size()));
    return text.data();
}

/// How an item says what it has been changed to.
std::string whatOf(const Suites& suites, ADMItemRef item) {
    const std::string_view type = suites.item->GetItemType(item);
    if (type.find("Check Box") != type.npos || type.find("Radio Button") != type.npos)
        return suites.item->GetBooleanValue(item) != 0 ? "on" : "off";
    if (type.find("Edit") != type.npos || type == kADMPopupControlType)
        return textOf(suites.item->GetText, item);
    if (type == kADMSliderType) {
        std::ostringstream value;
        value << suites.item->GetFloatValue(item);
        return value.str();
    }
    ADMListRef list = suites.item->GetList(item);
    ADMEntryRef entry = list != nullptr ? suites.list->GetActiveEntry(list) : nullptr;
    return entry != nullptr ? textOf(suites.entry->GetText, entry) : "-";
}

Journal& journalOf(const Suites& suites, ADMDialogRef dialog) {
    return *static_cast<Journal*>(suites.dialog->GetUserData(dialog));
}

} // namespace

Journal::Journal(const std::string& file) : stream_(file, std::ios::binary) {
    if (!stream_) throw std::runtime_error("cannot write " + file);
}

void Journal::write(const std::string& line) { stream_ << line << std::endl; }

void Journal::watch(const Page& page) {
    const Suites suites;
    ADMDialogRef dialog = page.dialog();
    suites.dialog->SetUserData(dialog, this);
    for (ADMItemRef item = suites.dialog->GetItem(dialog, kADMFirstItemID); item != nullptr;
         item = suites.dialog->GetNextItem(dialog, item))
        suites.item->SetNotifyProc(item, heard);
    ++hidden_;
    suites.dialog->CreateTimer(dialog, 1, 0, isShown, nullptr, 0);
}

void Journal::heard(ADMItemRef item, ADMNotifierRef notifier) {
    const Suites suites;
    ai::SuiteLease<ADMNotifierSuite> notifiers;
    ai::check(notifiers.acquire());
    Journal& journal = journalOf(suites, suites.item->GetDialog(item));
    for (const auto& [type, word] : {std::pair{kADMUserChangedNotifier, "user\t"},
                                     std::pair{kADMIntermediateChangedNotifier, "moving\t"}})
        if (notifiers->IsNotifierType(notifier, type) != 0)
            journal.write(word + std::to_string(suites.item->GetID(item)) + '\t' +
                          whatOf(suites, item));
    suites.item->DefaultNotify(item, notifier);
}

ADMBoolean Journal::isShown(ADMDialogRef dialog, ADMTimerRef) {
    const Suites suites;
    Journal& journal = journalOf(suites, dialog);
    journal.writeItems(dialog);
    if (--journal.hidden_ == 0) journal.write("shown");
    return false;
}

void Journal::writeItems(ADMDialogRef dialog) {
    const Suites suites;
    for (ADMItemRef item = suites.dialog->GetItem(dialog, kADMFirstItemID); item != nullptr;
         item = suites.dialog->GetNextItem(dialog, item)) {
        RECT place{};
        GetWindowRect(static_cast<HWND>(suites.item->GetWindowRef(item)), &place);
        std::ostringstream line;
        line << "item\t" << suites.item->GetID(item) << '\t' << place.left << '\t' << place.top
             << '\t' << place.right << '\t' << place.bottom << '\t'
             << suites.item->GetItemType(item) << '\t' << textOf(suites.item->GetText, item);
        write(line.str());
    }
}

} // namespace NRDM::gallery
