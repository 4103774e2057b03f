#include "ui/PanelShown.h"

#include "tool/axes/Apply.h"

#include <numbers>

namespace facetta {
namespace {

using namespace panel_item;

void check(PanelSession& session, ADMInt32 id, bool on) {
    showChecked(session.adm, session.item(id), on);
}

void enable(PanelSession& session, ADMInt32 id, bool enabled) {
    session.adm.item->Enable(session.item(id), enabled);
}

void show(PanelSession& session, ADMInt32 id, double value) {
    showNumber(session.adm, session.item(id), value);
}

bool canCancel(const ToolState& state) { return axesPending(state) || axesOnLayer(state); }

/// Whether axes are applied once or to the layer, and what goes with it.
void showMode(PanelSession& session) {
    const Preferences& preferences = session.tool.preferences;
    const bool toSelection = preferences.applyToSelection;
    check(session, kSelectionMode, toSelection);
    check(session, kLayerMode, !toSelection);
    check(session, kActive, preferences.autoMirror);
    enable(session, kActive, !toSelection);
    session.adm.item->SetText(session.item(kApply),
                              toSelection ? "Apply to Selection" : "Apply to Layer");
}

/// The active sector's overlay: on or off, how opaque, and whether that can be changed.
void showOverlaySettings(PanelSession& session) {
    const Preferences& preferences = session.tool.preferences;
    check(session, kOverlay, preferences.useOverlay);
    for (const ADMInt32 id : {kOverlayIcon, kOpacitySlider, kOpacityScale, kOpacity})
        enable(session, id, preferences.useOverlay);
    show(session, kOpacitySlider, preferences.opacity * 100.0);
    show(session, kOpacity, preferences.opacity * 100.0);
}

/// Origin, angle and count of the axes shown, or those that the next new axes will have; and
/// whether there is something to apply or to cancel.
void showAxes(PanelSession& session) {
    const ToolState& state = session.tool.state;
    const Preferences& preferences = session.tool.preferences;
    const bool areShown = state.axes.axisCount != 0;
    followRulers(session.adm, session.originItems(), session.tool.host);
    showOrigin(session.adm, session.originItems(), state.axes, session.tool.host);
    const double angle = areShown ? state.axes.angle : preferences.angle;
    show(session, kAngle, angle * 180.0 / std::numbers::pi);
    show(session, kCount, areShown ? state.axes.axisCount : preferences.count);
    enable(session, kApply, canApply(session.tool));
    enable(session, kCancel, canCancel(state));
}

} // namespace

void offerUpdateByMode(PanelSession& session) {
    const Preferences& preferences = session.tool.preferences;
    enable(session, kUpdate, !preferences.applyToSelection && !preferences.autoMirror);
}

void offerUpdateByLayer(PanelSession& session) {
    enable(session, kUpdate,
           !session.tool.preferences.autoMirror && layerAxesActive(session.tool.state));
}

void showState(PanelSession& session) {
    showMode(session);
    showOverlaySettings(session);
    showAxes(session);
}

} // namespace facetta
