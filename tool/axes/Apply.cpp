#include "tool/axes/Apply.h"

#include "host/UndoText.h"
#include "symmetry/LiveLayers.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"

#include <string_view>

namespace facetta {
namespace {

bool mayAttach(const ToolSession& session, GuardedAction action) {
    return session.licence.allows(action) && session.state.place.editable;
}

/// Puts `axes` on the current layer; `action` is the name of the step.
void attach(ToolSession& session, const SymmetryAxes& axes, bool autoMirror,
            std::string_view action) {
    ToolState& state = session.state;
    const SymmetryAxes before = state.axes;
    try {
        if (const LayerEdit* const edit = layerEditOf(state)) reclaimCopies(*edit);
        state.axes = axes;
        attachAxes(session.state.axes, session.mirroring, autoMirror);
        ai::nameUndoStep(action);
    } catch (...) {
        state.axes = before;
        throw;
    }
    state.justApplied = before;
    happen(state, Event::AppliedToLayer);
}

} // namespace

bool canApply(const ToolSession& session) {
    const ToolState& state = session.state;
    if (state.activity == Activity::Away) return false;
    if (!session.preferences.applyToSelection) return true;
    return !selectionEmpty(state) && !axesOnLayer(state);
}

void applyAxes(ToolSession& session) {
    if (session.preferences.applyToSelection) {
        // What follows the cursor from now on is read when that moves: what is selected now are all
        // the copies.
        applyToSelection(session);
        redrawOverlay(session.view);
    } else {
        applyToLayer(session);
        axesChanged(session);
    }
    session.updatePanel();
}

void applyToSelection(ToolSession& session) {
    ToolState& state = session.state;
    if (state.axes.axisCount == 0 || axesOnLayer(state)) return;
    if (!session.licence.allows(GuardedAction::ApplyToSelection)) return;
    state.selection.forget(); // the host may tell of a change late
    if (selectionEmpty(state)) return;
    MirrorEngine(session.mirroring)
        .run(/*selectionMode*/ true, /*keepCurrentAxes*/ false, /*option*/ false, nullptr);
    ai::nameUndoStep("Apply Symmetry Axes to Selection");
    state.justApplied = state.axes;
    happen(state, Event::AppliedToSelection);
    showWhatIsLeft(session);
}

void applyToLayer(ToolSession& session) {
    if (session.state.axes.axisCount == 0 || !mayAttach(session, GuardedAction::ApplyToLayer))
        return;
    attach(session, session.state.axes, session.preferences.autoMirror,
           "Apply Symmetry Axes to Layer");
}

void pasteToLayer(ToolSession& session, const SymmetryAxes& copied) {
    if (!mayAttach(session, GuardedAction::PasteToLayer)) return;
    attach(session, copied, copied.autoMirror, "Paste Symmetry Axes to Layer");
    axesChanged(session);
    session.updatePanel();
}

void cancelAxes(ToolSession& session, LayerCopies copies) {
    if (layerEditInProgress(session.state)) return restoreLayer(session, copies);
    happen(session.state, Event::AxesDropped);
    showWhatIsLeft(session);
}

void showWhatIsLeft(ToolSession& session) {
    showLayerAxes(session);
    if (session.state.activity == Activity::FollowingCursor)
        previewAt(session, session.state.cursor);
}

} // namespace facetta
