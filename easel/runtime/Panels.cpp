#include "easel/runtime/Panels.h"

#include "easel/core/Text.h"

#include <algorithm>

namespace easel {
namespace {

bool sameSize(AISize a, AISize b) { return a.width == b.width && a.height == b.height; }

void showButtons(Panel& panel) {
    panel.window->setButtons({panel.stateCount > 1, panel.flyout != nullptr});
}

/// Tells the plug-in, if it wants to know.
template <typename Callback, typename... Arguments>
void tell(Callback callback, Arguments... arguments) {
    if (callback != nullptr) callback(arguments...);
}

} // namespace

AIPanelRef Panels::add(Panel panel) {
    const bool makesSense =
        panel.stateCount >= 1 && panel.size.width >= 0 && panel.size.height >= 0;
    if (!makesSense || named(panel.id) != nullptr) throw ai::Error{kBadParameterErr};
    const AIPanelRef ref = panels_.add(std::move(panel));
    Panel& added = panels_.at(ref);
    added.window = std::make_unique<PanelWindow>(
        added.title, added.size,
        PanelWindowEvents{[this, ref] { act("close", [&] { show(ref, false); }); },
                          [this, ref] {
                              const bool isCompact = at(ref).state == 1;
                              act(isCompact ? "expand" : "collapse", [&] { cycle(ref); });
                          },
                          [this, ref] { chooseOnScreen(ref); }},
        dock);
    showButtons(added);
    added.window->move(added.position);
    return ref;
}

void Panels::remove(AIPanelRef panel) {
    static_cast<void>(at(panel));
    panels_.remove(panel);
}

Panel& Panels::at(AIPanelRef ref) const {
    Panel* const panel = panels_.find(ref);
    if (panel == nullptr) throw ai::Error{kInvalidPanelErr};
    return *panel;
}

AIPanelRef Panels::named(const std::u32string& id) const {
    return panels_.findIf([&](const Panel& panel) { return panel.id == id; });
}

FlyoutMenu& Panels::menu(AIPanelFlyoutMenuRef ref) const {
    FlyoutMenu* const menu = menus_.find(ref);
    if (menu == nullptr) throw ai::Error{kInvalidPanelErr};
    return *menu;
}

void Panels::removeMenu(AIPanelFlyoutMenuRef removed) {
    static_cast<void>(menu(removed));
    menus_.remove(removed);
    for (const auto& [ref, panel] : panels_)
        if (panel->flyout == removed) setFlyout(ref, nullptr);
}

void Panels::show(AIPanelRef ref, bool shown) {
    Panel& panel = at(ref);
    if ((panel.shown != 0) == shown) return;
    panel.shown = shown ? 1 : 0;
    panel.window->show(shown);
    tell(panel.callbacks.visibility, ref, panel.shown);
}

void Panels::resize(AIPanelRef ref, AISize size) {
    Panel& panel = at(ref);
    if (sameSize(size, panel.size)) return;
    panel.size = size;
    panel.window->setSize(size);
    tell(panel.callbacks.size, ref);
}

void Panels::setState(AIPanelRef ref, ai::int16 state) {
    Panel& panel = at(ref);
    if (state < 1 || state > panel.stateCount) throw ai::Error{kBadParameterErr};
    if (state == panel.state) return;
    panel.state = state;
    tell(panel.callbacks.state, ref, state);
}

void Panels::cycle(AIPanelRef ref) {
    const Panel& panel = at(ref);
    setState(ref, static_cast<ai::int16>(panel.state % panel.stateCount + 1));
}

void Panels::setFlyout(AIPanelRef ref, AIPanelFlyoutMenuRef shown) {
    if (shown != nullptr) static_cast<void>(menu(shown));
    Panel& panel = at(ref);
    panel.flyout = shown;
    showButtons(panel);
}

const FlyoutMenu& Panels::openFlyout(AIPanelRef ref) {
    tell(at(ref).callbacks.flyoutOpens, ref);
    return menu(at(ref).flyout);
}

void Panels::chooseFromFlyout(AIPanelRef ref, ai::uint32 id) {
    const bool can = std::ranges::any_of(menu(at(ref).flyout).items, [&](const FlyoutItem& item) {
        return item.id == id && !item.isSeparator && item.enabled != 0;
    });
    tell(at(ref).callbacks.flyoutChosen, ref, can ? id : 0);
}

void Panels::chooseOnScreen(AIPanelRef ref) {
    const ai::uint32 id = at(ref).window->popUp(openFlyout(ref).items);
    std::string deed;
    for (const FlyoutItem& item : menu(at(ref).flyout).items)
        if (id != 0 && item.id == id) deed = "flyout \"" + utf8FromUtf32(item.text) + '"';
    act(deed, [&] { chooseFromFlyout(ref, id); });
}

std::vector<std::string> Panels::removeAllOf(SPPluginRef plugin) {
    std::vector<std::string> left;
    for (const auto& [ref, panel] : panels_)
        if (panel->plugin == plugin)
            left.push_back("panel \"" + utf8FromUtf32(panel->id) + "\" outlives its plug-in");
    for (const auto& [ref, menu] : menus_)
        if (menu->plugin == plugin) left.emplace_back("a flyout menu outlives its plug-in");
    const auto isOfPlugin = [plugin](const auto& each) { return each.plugin == plugin; };
    panels_.removeIf(isOfPlugin);
    menus_.removeIf(isOfPlugin);
    return left;
}

} // namespace easel
