#include "tool/ToolState.h"

#include <cassert>

namespace facetta {
namespace {

/// The record tells whoever gets it alone what its axes are for.
void labelAxes(ToolState& state) {
    state.axes.provisional = meaningOf(state.activity).provisional;
    state.axes.onLayer = meaningOf(state.activity).onLayer;
}

/// The axes that were shown are gone; so is whatever of them was grabbed or lit up.
void clearAxes(ToolState& state) {
    state.axes = {};
    state.zone = ToolZone::Canvas;
    state.hoverItem = DialogItem::None;
    state.sectorHandleHighlighted = false;
    state.secondClick = false;
    clearPreview(state);
}

void enter(ToolState& state, Activity activity) {
    const bool axesGo = hasAxes(state.activity) && !hasAxes(activity);
    state.activity = activity;
    if (axesGo || activity == Activity::Away) clearAxes(state);
    if (activity != Activity::EditingLayerAxes) {
        state.edit = kNoEdit;
        state.editCountsAs = CountsAs::Modified;
    }
    if (activity != Activity::Repositioning) state.repositionArt.reset();
    labelAxes(state);
}

} // namespace

void happen(ToolState& state, Event event) {
    assert(transitionOf(event).press == Press::GoesOn || !buttonIsDown(state));
    if (event == Event::ToolTaken) state.toolSelected = true;
    if (event == Event::ToolPutAway) {
        state.toolSelected = false;
        state.memory.dropAside();
    }
    // What the user drops does not come back by undoing what came later.
    if (event == Event::ToolPutAway || event == Event::AxesDropped)
        state.memory.forgetMoment(state.place);
    enter(state, after(state.activity, event, state.toolSelected));
}

Holding holdingOf(const ToolState& state) { return {state.activity, state.axes, state.edit}; }

void hold(ToolState& state, const Holding& holding) {
    enter(state, holding.activity);
    state.axes = holding.axes;
    state.edit = holding.edit;
    labelAxes(state);
}

void cancelPress(ToolState& state) {
    if (!buttonIsDown(state)) return;
    state.gesture->cancelled = true;
    hold(state, state.gesture->before);
}

} // namespace facetta
