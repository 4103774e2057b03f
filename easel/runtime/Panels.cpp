#include "easel/runtime/Panels.h"

#include "easel/core/Text.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

/// A submenu may lead back to the menu it is in.
constexpr int kDeepestMenu = 4;

bool sameSize(AISize a, AISize b) { return a.width == b.width && a.height == b.height; }

/// `size` within the limits; of a resizable panel the height is rounded down to a whole step.
AISize fitted(const Panel& panel, AISize size) {
    const PanelSizes& sizes = panel.sizes;
    AISize fit{std::clamp(size.width, sizes.least.width, sizes.greatest.width),
               std::clamp(size.height, sizes.least.height, sizes.greatest.height)};
    if (panel.resizable && sizes.step > 0)
        fit.height = sizes.least.height +
                     sizes.step * std::floor((fit.height - sizes.least.height) / sizes.step);
    return fit;
}

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
    const AISize least = panel.sizes.least;
    const bool makesSense = panel.stateCount >= 1 && least.width >= 0 && least.height >= 0;
    if (!makesSense || named(panel.id) != nullptr) throw ai::Error{kBadParameterErr};
    constexpr AIReal kNoLimit = 16384;
    panel.size = panel.sizes.floating = panel.sizes.docked = least;
    panel.sizes.greatest = panel.resizable ? AISize{kNoLimit, kNoLimit} : least;
    const AIPanelRef ref = panels_.add(std::move(panel));
    Panel& added = panels_.at(ref);
    added.window = std::make_unique<PanelWindow>(
        added.title, added.size, added.resizable,
        PanelWindowEvents{[this, ref](AISize size) { act("", [&] { resize(ref, size); }); },
                          [this, ref] { act("close", [&] { close(ref); }); },
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
    for (const auto& [ref, menu] : menus_)
        for (FlyoutItem& item : menu->items)
            if (item.submenu == removed) item.submenu = nullptr;
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
    const AISize fit = fitted(panel, size);
    const bool changed = !sameSize(fit, panel.size);
    panel.size = fit;
    if (changed || !sameSize(fit, size)) panel.window->setSize(fit);
    if (changed) tell(panel.callbacks.size, ref);
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

void Panels::minimize(AIPanelRef ref, bool minimized) {
    Panel& panel = at(ref);
    panel.minimized = minimized ? 1 : 0;
    // Only the title stays; the panel's own size waits.
    panel.window->setSize(minimized ? AISize{panel.size.width, 0} : panel.size);
}

void Panels::close(AIPanelRef ref) {
    show(ref, false);
    if (const Panel* const panel = panels_.find(ref)) tell(panel->callbacks.closed, ref);
}

void Panels::setFlyout(AIPanelRef ref, AIPanelFlyoutMenuRef shown) {
    if (shown != nullptr) static_cast<void>(menu(shown));
    Panel& panel = at(ref);
    panel.flyout = shown;
    showButtons(panel);
}

void Panels::setStateCount(AIPanelRef ref, ai::int16 count) {
    if (count < 1) throw ai::Error{kBadParameterErr};
    Panel& panel = at(ref);
    panel.stateCount = count;
    showButtons(panel);
    if (panel.state > count) setState(ref, count);
}

const FlyoutMenu& Panels::openFlyout(AIPanelRef ref) {
    tell(at(ref).callbacks.flyoutOpens, ref);
    return menu(at(ref).flyout);
}

bool Panels::canChoose(const FlyoutMenu& from, ai::uint32 id, int depth) const {
    return std::ranges::any_of(from.items, [&](const FlyoutItem& item) {
        if (item.isSeparator || item.enabled == 0) return false;
        if (item.submenu == nullptr) return item.id == id;
        return depth < kDeepestMenu && canChoose(menu(item.submenu), id, depth + 1);
    });
}

void Panels::chooseFromFlyout(AIPanelRef ref, ai::uint32 id) {
    const bool can = canChoose(menu(at(ref).flyout), id, 0);
    tell(at(ref).callbacks.flyoutChosen, ref, can ? id : 0);
}

void Panels::chooseOnScreen(AIPanelRef ref) {
    const ai::uint32 id = popUpFlyout(ref);
    std::string deed;
    for (const FlyoutItem& item : menu(at(ref).flyout).items)
        if (id != 0 && item.id == id) deed = "flyout \"" + utf8FromUtf32(item.text) + '"';
    act(deed, [&] { chooseFromFlyout(ref, id); });
}

ai::uint32 Panels::popUpFlyout(AIPanelRef ref) {
    const std::vector<PopupLine> lines = popupLines(openFlyout(ref), 0);
    return at(ref).window->popUp(lines);
}

std::vector<PopupLine> Panels::popupLines(const FlyoutMenu& from, int depth) const {
    std::vector<PopupLine> lines;
    for (const FlyoutItem& item : from.items) {
        const bool marked = item.mark != AIPanelFlyoutMenuItemMark::None;
        PopupLine line{item.id, item.text, item.isSeparator, item.enabled != 0, marked, {}};
        if (item.submenu != nullptr && depth < kDeepestMenu)
            line.submenu = popupLines(menu(item.submenu), depth + 1);
        lines.push_back(std::move(line));
    }
    return lines;
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
