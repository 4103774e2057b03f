#include "toolkit/ImplCommon/INRDMList.h"

#include "toolkit/ImplCommon/CoADMItem.h"
#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplCommon/Resources.h"
#include "toolkit/ImplCommon/Text.h"

#include <algorithm>

namespace NRDM {

int INRDMEntry::index() const {
    const auto self = std::ranges::find(list_.entries_, this, &std::unique_ptr<INRDMEntry>::get);
    return static_cast<int>(self - list_.entries_.begin());
}

void INRDMEntry::setText(std::string text) {
    text_ = std::move(text);
    list_.changed();
}

void INRDMEntry::enable(bool enabled) {
    enabled_ = enabled;
    list_.changed();
}

void INRDMEntry::makeSeparator(bool separator) {
    separator_ = separator;
    list_.changed();
}

void INRDMEntry::check(bool checked) {
    checked_ = checked;
    list_.changed();
}

bool INRDMEntry::isSelected() const { return list_.chosen() == this; }

void INRDMEntry::select(bool selected) {
    if (selected)
        list_.choose(this);
    else if (isSelected())
        list_.choose(nullptr);
}

void INRDMList::setMenu(SPPluginRef plugin, int id) {
    const auto lines = readMenu(resourceLibrary(plugin), id);
    if (!lines) throw NRDMResourceException(kResourceReadFailed);
    std::vector<std::unique_ptr<INRDMEntry>> entries;
    for (const MenuLine& line : *lines) {
        INRDMEntry& entry = *entries.emplace_back(std::make_unique<INRDMEntry>(*this));
        entry.text_ = utf8Of(line.text);
        entry.id_ = line.id;
        entry.separator_ = line.separator;
        entry.enabled_ = line.enabled;
        entry.checked_ = line.checked;
    }
    menuId_ = id;
    chosen_ = nullptr;
    entries_ = std::move(entries);
    changed();
}

INRDMEntry& INRDMList::insert(int position) {
    const auto at = entries_.begin() + std::clamp(position, 0, count());
    INRDMEntry& entry = **entries_.insert(at, std::make_unique<INRDMEntry>(*this));
    changed();
    return entry;
}

bool INRDMList::remove(int position) {
    INRDMEntry* const entry = at(position);
    if (entry == nullptr) return false;
    if (chosen_ == entry) chosen_ = nullptr;
    entries_.erase(entries_.begin() + position);
    changed();
    return true;
}

INRDMEntry* INRDMList::at(int position) const {
    if (position < 0 || position >= count()) return nullptr;
    return entries_[static_cast<std::size_t>(position)].get();
}

INRDMEntry* INRDMList::withId(int id) const {
    const auto found =
        std::ranges::find(entries_, id, [](const auto& entry) { return entry->id(); });
    return found != entries_.end() ? found->get() : nullptr;
}

INRDMEntry* INRDMList::withText(const std::string& text) const {
    const auto found = std::ranges::find_if(entries_, [&](const auto& entry) {
        return !entry->isSeparator() && entry->text() == text;
    });
    return found != entries_.end() ? found->get() : nullptr;
}

void INRDMList::choose(INRDMEntry* entry) {
    if (chosen_ == entry) return;
    chosen_ = entry;
    changed();
}

void INRDMList::changed() { item_.listChanged(); }

} // namespace NRDM
