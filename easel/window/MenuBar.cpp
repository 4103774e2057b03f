#include "easel/window/MenuBar.h"

#include "easel/core/Text.h"
#include "easel/window/NativeWindow.h"

namespace easel::window {
namespace {

constexpr const wchar_t* kTitles[] = {L"&File", L"&Edit", L"&View", L"&Window", L"&Help"};
constexpr int kDeepestMenu = 5; ///< A plug-in can put a menu into itself.

/// The host's groups in the menus that people look for them in.
struct GroupRow {
    MenuPlace place;
    const char* group;
};
constexpr GroupRow kGroups[] = {
    {MenuPlace::File, "Document Utilities"}, {MenuPlace::Edit, "Edit Utilities"},
    {MenuPlace::Edit, "Preferences"},        {MenuPlace::View, "View Utilities"},
    {MenuPlace::View, "View Extension"},     {MenuPlace::Window, "Tool Palettes"},
    {MenuPlace::Window, "Window Utilities"}, {MenuPlace::Window, "Window Libraries"},
    {MenuPlace::Help, "Help Menu"},          {MenuPlace::Help, "About"},
};

} // namespace

HMENU MenuBar::open() {
    bar_ = CreateMenu();
    for (const wchar_t* const title : kTitles)
        AppendMenuW(bar_, MF_POPUP, reinterpret_cast<UINT_PTR>(CreatePopupMenu()), title);
    return bar_;
}

HMENU MenuBar::at(MenuPlace place) const { return GetSubMenu(bar_, static_cast<int>(place)); }

void MenuBar::refresh(HMENU menu) {
    Host& host = hand_.host();
    if (host.contexts.depth() != 0) return;
    if (ownCounts_.empty()) {
        for (int place = 0; place < static_cast<int>(std::size(kTitles)); ++place)
            ownCounts_.push_back(GetMenuItemCount(GetSubMenu(bar_, place)));
    }
    for (std::size_t place = 0; place < ownCounts_.size(); ++place) {
        if (GetSubMenu(bar_, static_cast<int>(place)) != menu) continue;
        host.openMenus();
        while (GetMenuItemCount(menu) > ownCounts_[place])
            DeleteMenu(menu, static_cast<UINT>(ownCounts_[place]), MF_BYPOSITION);
        shown_.clear();
        for (const GroupRow& row : kGroups)
            if (static_cast<std::size_t>(row.place) == place)
                appendGroup(menu, host.menus.groupNamed(row.group), 0);
    }
}

void MenuBar::appendGroup(HMENU menu, AIMenuGroup group, int depth) {
    const Menus& menus = hand_.host().menus;
    for (const auto& [handle, item] : menus.items) {
        if (item->group != group || depth == kDeepestMenu) continue;
        if ((item->options & kItemIsSeparator) != 0) {
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            continue;
        }
        const std::u16string units = utf16FromUtf32(item->text);
        const std::wstring text(units.begin(), units.end());
        const auto isOpened = [&, opener = handle](const MenuGroup& each) {
            return each.opener == opener;
        };
        if (const AIMenuGroup inner = menus.groups.findIf(isOpened)) {
            const HMENU submenu = CreatePopupMenu();
            appendGroup(submenu, inner, depth + 1);
            AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), text.c_str());
            continue;
        }
        const UINT state =
            (item->enabled ? MF_ENABLED : MF_GRAYED) | (item->checked ? MF_CHECKED : MF_UNCHECKED);
        const auto command = static_cast<UINT_PTR>(firstCommand_) + shown_.size();
        AppendMenuW(menu, MF_STRING | state, command, text.c_str());
        shown_.push_back(handle);
    }
}

bool MenuBar::choose(int command) {
    const int index = command - firstCommand_;
    if (index < 0 || index >= std::ssize(shown_)) return false;
    const Menus& menus = hand_.host().menus;
    const MenuItem* const item = menus.items.find(shown_[static_cast<std::size_t>(index)]);
    if (item != nullptr)
        hand_.act("menu " + script::quoted(item->key.value_or(utf8FromUtf32(item->text))));
    return true;
}

} // namespace easel::window
