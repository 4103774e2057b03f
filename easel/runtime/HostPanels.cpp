#include "easel/runtime/Host.h"

#include "host/MessageNames.h"

#include <algorithm>

namespace easel {

void Host::setInterfaceDark(bool dark) {
    if (user.darkTheme == dark) return;
    user.darkTheme = dark;
    notify(kUIBrightnessChangedNotifier);
    idle();
}

void Host::showPanel(AIPanelRef panel, bool shown) {
    panels.show(panel, shown);
    idle();
}

void Host::closePanel(AIPanelRef panel) {
    panels.close(panel);
    idle();
}

void Host::resizePanel(AIPanelRef panel, AISize size) {
    panels.resize(panel, size);
    idle();
}

void Host::cyclePanel(AIPanelRef ref) {
    const Panel& panel = panels.at(ref);
    panels.setState(ref, static_cast<ai::int16>(panel.state % panel.stateCount + 1));
    idle();
}

const FlyoutMenu& Host::openFlyout(AIPanelRef ref) {
    if (const auto opens = panels.at(ref).callbacks.flyoutOpens) opens(ref);
    return panels.menu(panels.at(ref).flyout);
}

void Host::chooseFlyoutItem(AIPanelRef ref, ai::uint32 id) {
    const FlyoutMenu& menu = openFlyout(ref);
    const auto item = std::ranges::find(menu.items, id, &FlyoutItem::id);
    const bool canBe = item != menu.items.end() && !item->isSeparator && item->enabled != 0;
    if (const auto chosen = panels.at(ref).callbacks.flyoutChosen) chosen(ref, canBe ? id : 0);
    idle();
}

} // namespace easel
