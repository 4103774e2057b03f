#include "toolkit/ImplCommon/NRDMPanelMenu.h"

#include "host/Error.h"
#include "host/UnicodeString.h"
#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplCommon/INRDMList.h"

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

std::vector<PanelMenuEntry> entriesOf(const INRDMList& list) {
    std::vector<PanelMenuEntry> entries;
    for (int i = 0; i < list.count(); ++i) {
        const INRDMEntry& entry = *list.at(i);
        entries.push_back(
            {entry.text(), entry.isSeparator(), entry.isEnabled(), entry.isChecked()});
    }
    return entries;
}

constexpr ai::uint32 idOf(std::size_t position) { return static_cast<ai::uint32>(position) + 1; }

} // namespace

NRDMPanelMenu::NRDMPanelMenu(const AIPanelFlyoutMenuSuite& suite) : suite_(suite) {
    if (suite_.Create(menu_) != kNoErr) throw NRDMResourceException();
}

NRDMPanelMenu::~NRDMPanelMenu() { suite_.Destroy(menu_); }

void NRDMPanelMenu::show(const INRDMList& list) {
    std::vector<PanelMenuEntry> entries = entriesOf(list);
    if (!std::ranges::equal(entries, shown_, {}, &PanelMenuEntry::separator,
                            &PanelMenuEntry::separator)) {
        rebuild(entries);
    } else {
        for (std::size_t i = 0; i < entries.size(); ++i)
            if (entries[i].text != shown_[i].text)
                ai::check(suite_.SetItemText(menu_, static_cast<ai::uint32>(i),
                                             ai::UnicodeString(entries[i].text)));
    }
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (!entries[i].separator) setState(static_cast<ai::uint32>(i), entries[i]);
    shown_ = std::move(entries);
}

void NRDMPanelMenu::rebuild(const std::vector<PanelMenuEntry>& entries) {
    for (std::size_t i = shown_.size(); i-- > 0;)
        ai::check(suite_.RemoveItem(menu_, static_cast<ai::uint32>(i)));
    shown_.clear();
    for (std::size_t i = 0; i < entries.size(); ++i)
        ai::check(entries[i].separator
                      ? suite_.AppendSeparator(menu_, idOf(i))
                      : suite_.AppendItem(menu_, idOf(i), ai::UnicodeString(entries[i].text)));
}

void NRDMPanelMenu::setState(ai::uint32 index, const PanelMenuEntry& entry) {
    const bool isNew = index >= shown_.size();
    if (isNew || shown_[index].enabled != entry.enabled)
        ai::check(suite_.SetItemEnabled(menu_, index, entry.enabled));
    if (isNew || shown_[index].checked != entry.checked)
        ai::check(suite_.SetItemMark(menu_, index,
                                     entry.checked ? AIPanelFlyoutMenuItemMark::Check
                                                   : AIPanelFlyoutMenuItemMark::None));
}

} // namespace NRDM
