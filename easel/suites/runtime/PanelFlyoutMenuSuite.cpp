#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
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
void append(MenuRef menu, FlyoutItem item) {
    auto& items = at(menu).items;
    if (item.id == 0 || std::ranges::find(items, item.id, &FlyoutItem::id) != items.end())
        throw ai::Error{kBadParameterErr};
    items.push_back(std::move(item));
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
    expose<&Suite::Create, create>(server);
    exposeEnding<&Suite::Destroy, destroy>(server);
    expose<&Suite::AppendItem, appendItem>(server);
    expose<&Suite::AppendSeparator, appendSeparator>(server);
    expose<&Suite::RemoveItem, removeItem>(server);
    expose<&Suite::SetItemEnabled, set<AIBoolean, &FlyoutItem::enabled>>(server);
    expose<&Suite::SetItemMark, set<Mark, &FlyoutItem::mark>>(server);
    expose<&Suite::SetItemText, setText>(server);
}

} // namespace easel
