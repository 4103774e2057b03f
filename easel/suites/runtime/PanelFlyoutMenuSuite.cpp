#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/suites/runtime/RunningHost.h"
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

void append(MenuRef menu, FlyoutItem item) {
    requireNewId(menu, item.id);
    at(menu).items.push_back(std::move(item));
}

MenuRef create() { return host().panels.addMenu(host().sender.receiver()); }

void destroy(MenuRef menu) { host().panels.removeMenu(menu); }

void appendItem(MenuRef menu, ai::uint32 id, const ai::UnicodeString& text) {
    append(menu, {.id = id, .text = readString(session().ledger, text)});
}

void appendSeparator(MenuRef menu, ai::uint32 id) {
    append(menu, {.id = id, .text = {}, .isSeparator = true});
}

void removeItem(MenuRef menu, ai::uint32 index) {
    static_cast<void>(itemAt(menu, index));
    auto& items = at(menu).items;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(index));
}

template <typename Value, Value FlyoutItem::*Member>
void set(MenuRef menu, ai::uint32 index, Value value) {
    itemAt(menu, index).*Member = value;
}

void setText(MenuRef menu, ai::uint32 index, const ai::UnicodeString& text) {
    itemAt(menu, index).text = readString(session().ledger, text);
}

} // namespace

void installPanelFlyoutMenuSuite(SuiteServer& server) {
    using Suite = AIPanelFlyoutMenuSuite;
    using Mark = AIPanelFlyoutMenuItemMark;
    auto table = server.table<Suite>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion);
    expose<&Suite::Create, create>(table);
    exposeEnding<&Suite::Destroy, destroy>(table);
    expose<&Suite::AppendItem, appendItem>(table);
    expose<&Suite::AppendSeparator, appendSeparator>(table);
    expose<&Suite::RemoveItem, removeItem>(table);
    expose<&Suite::SetItemEnabled, set<AIBoolean, &FlyoutItem::enabled>>(table);
    expose<&Suite::SetItemMark, set<Mark, &FlyoutItem::mark>>(table);
    expose<&Suite::SetItemText, setText>(table);
}

} // namespace easel
