#include "tool/axes/Apply.h"

#include "host/UndoText.h"
#include "symmetry/LiveLayers.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"
#include "tool/axes/LayerEdit.h"

namespace facetta {
namespace {

/// Pending axes are gone: the current layer's are shown, or new ones follow the cursor.
void showWhatIsLeft(ToolSession& session) {
    showLayerAxes(session);
    if (session.state.activity == Activity::FollowingCursor)
        previewAt(session, session.state.cursor);
}

} // namespace

void applyToSelection(ToolSession& session) {
    ToolState& state = session.state;
    if (!session.licence.allows(GuardedAction::ApplyToSelection) || selectionIsEmpty()) return;
    MirrorEngine(session.mirroring)
        .run(/*selectionMode*/ true, /*keepCurrentAxes*/ false, /*option*/ false, nullptr);
    ai::nameUndoStep("Apply Symmetry Axes to Selection");
    state.justApplied = state.axes;
    happen(state, Event::AppliedToSelection);
    showWhatIsLeft(session);
}

void applyToLayer(ToolSession& session) {
    ToolState& state = session.state;
    if (!session.licence.allows(GuardedAction::ApplyToLayer) || !state.place.editable) return;
    const SymmetryAxes pending = state.axes;
    try {
        if (const LayerEdit* const edit = layerEditOf(state)) reclaimCopies(*edit);
        attachAxes(session.mirroring, session.preferences.autoMirror);
        ai::nameUndoStep("Apply Symmetry Axes to Layer");
    } catch (...) {
        state.axes = pending;
        throw;
    }
    state.justApplied = pending;
    happen(state, Event::AppliedToLayer);
}

void cancelAxes(ToolSession& session) {
    if (layerEditInProgress(session.state)) return restoreLayer(session);
    happen(session.state, Event::AxesDropped);
    showWhatIsLeft(session);
}

} // namespace facetta
