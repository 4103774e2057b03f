#include "easel/runtime/Host.h"

#include "host/MessageNames.h"

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

const FlyoutMenu& Host::openFlyout(AIPanelRef panel) { return panels.openFlyout(panel); }

void Host::chooseFlyoutItem(AIPanelRef panel, ai::uint32 id) {
    panels.openFlyout(panel);
    panels.chooseFromFlyout(panel, id);
    idle();
}

void Host::pressFlyout(AIPanelRef panel) {
    panels.chooseFromFlyout(panel, panels.popUpFlyout(panel));
    idle();
}

} // namespace easel
