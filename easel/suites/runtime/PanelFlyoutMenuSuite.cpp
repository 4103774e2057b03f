#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/runtime/Host.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIPanelFlyoutMenuSuite.h"

#include <algorithm>

namespace easel {
namespace {

using MenuRef = AIPanelFlyoutMenuRef;

FlyoutMenu& at(MenuRef menu) { return host().panels.menu(menu); }

FlyoutItem& itemAt(MenuRef menu, ai::uint32 index) {
    auto& items = at(menu).items;
    if (index >= items.size()) throw ai::Error{kBadParameterErr};
    return items[index];
}

/// Ids are unique and never 0, because 0 tells that nothing was chosen.
void requireNewId(MenuRef menu, ai::uint32 id) {
    const auto& items = at(menu).items;
    if (id == 0 || std::ranges::find(items, id, &FlyoutItem::id) != items.end())
        throw ai::Error{kBadParameterErr};
}

void insert(MenuRef menu, std::vector<FlyoutItem>::iterator before, FlyoutItem item) {
    requireNewId(menu, item.id);
    at(menu).items.insert(before, std::move(item));
}

FlyoutItem named(ai::uint32 id, const ai::UnicodeString& text) {
    return {.id = id, .text = readString(text)};
}

FlyoutItem separator(ai::uint32 id) { return {.id = id, .text = {}, .isSeparator = true}; }

AIErr create(MenuRef& menu) {
    menu = host().panels.addMenu(host().currentPlugin());
    return kNoErr;
}

AIErr destroy(MenuRef menu) {
    host().panels.removeMenu(menu);
    return kNoErr;
}

AIErr size(MenuRef menu, ai::uint32& count) {
    count = static_cast<ai::uint32>(at(menu).items.size());
    return kNoErr;
}

AIErr appendItem(MenuRef menu, ai::uint32 id, const ai::UnicodeString& text) {
    insert(menu, at(menu).items.end(), named(id, text));
    return kNoErr;
}

AIErr appendSeparator(MenuRef menu, ai::uint32 id) {
    insert(menu, at(menu).items.end(), separator(id));
    return kNoErr;
}

AIErr insertItem(MenuRef menu, ai::uint32 before, ai::uint32 id, const ai::UnicodeString& text) {
    insert(menu, at(menu).withId(before), named(id, text));
    return kNoErr;
}

AIErr insertSeparator(MenuRef menu, ai::uint32 before, ai::uint32 id) {
    insert(menu, at(menu).withId(before), separator(id));
    return kNoErr;
}

AIErr removeItem(MenuRef menu, ai::uint32 index) {
    static_cast<void>(itemAt(menu, index));
    auto& items = at(menu).items;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(index));
    return kNoErr;
}

template <typename Value, Value FlyoutItem::*Member>
AIErr get(MenuRef menu, ai::uint32 index, Value& value) {
    value = itemAt(menu, index).*Member;
    return kNoErr;
}

template <typename Value, Value FlyoutItem::*Member>
AIErr set(MenuRef menu, ai::uint32 index, Value value) {
    itemAt(menu, index).*Member = value;
    return kNoErr;
}

AIErr setText(MenuRef menu, ai::uint32 index, const ai::UnicodeString& text) {
    itemAt(menu, index).text = readString(text);
    return kNoErr;
}

AIErr getText(MenuRef menu, ai::uint32 index, ai::UnicodeString& text) {
    writeString(text, itemAt(menu, index).text);
    return kNoErr;
}

AIErr isSeparator(MenuRef menu, ai::uint32 index, AIBoolean& answer) {
    answer = itemAt(menu, index).isSeparator ? 1 : 0;
    return kNoErr;
}

AIErr setSubMenu(MenuRef menu, ai::uint32 index, MenuRef submenu) {
    static_cast<void>(at(submenu));
    if (submenu == menu) throw ai::Error{kBadParameterErr};
    itemAt(menu, index).submenu = submenu;
    return kNoErr;
}

AIErr detachSubMenu(MenuRef menu, ai::uint32 index) {
    itemAt(menu, index).submenu = nullptr;
    return kNoErr;
}

AIErr setId(MenuRef menu, ai::uint32 index, ai::uint32 id) {
    FlyoutItem& item = itemAt(menu, index);
    if (item.id == id) return kNoErr;
    requireNewId(menu, id);
    item.id = id;
    return kNoErr;
}

} // namespace

void installPanelFlyoutMenuSuite(SuiteServer& server) {
    using Suite = AIPanelFlyoutMenuSuite;
    using Mark = AIPanelFlyoutMenuItemMark;
    auto table = server.table<Suite>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion);
    expose<&Suite::Create, create>(table);
    exposeEnding<&Suite::Destroy, destroy>(table);
    expose<&Suite::Size, size>(table);
    expose<&Suite::AppendItem, appendItem>(table);
    expose<&Suite::AppendSeparator, appendSeparator>(table);
    expose<&Suite::InsertItem, insertItem>(table);
    expose<&Suite::InsertSeparator, insertSeparator>(table);
    expose<&Suite::RemoveItem, removeItem>(table);
    expose<&Suite::SetItemEnabled, set<AIBoolean, &FlyoutItem::enabled>>(table);
    expose<&Suite::GetItemEnabled, get<AIBoolean, &FlyoutItem::enabled>>(table);
    expose<&Suite::SetItemMark, set<Mark, &FlyoutItem::mark>>(table);
    expose<&Suite::GetItemMark, get<Mark, &FlyoutItem::mark>>(table);
    expose<&Suite::SetItemText, setText>(table);
    expose<&Suite::GetItemText, getText>(table);
    expose<&Suite::IsItemSeparator, isSeparator>(table);
    expose<&Suite::SetItemSubMenu, setSubMenu>(table);
    expose<&Suite::GetItemSubMenu, get<MenuRef, &FlyoutItem::submenu>>(table);
    expose<&Suite::DetachItemSubMenu, detachSubMenu>(table);
    expose<&Suite::SetItemID, setId>(table);
    expose<&Suite::GetItemID, get<ai::uint32, &FlyoutItem::id>>(table);
}

} // namespace easel
