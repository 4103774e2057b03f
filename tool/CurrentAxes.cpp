#include "tool/CurrentAxes.h"

#include "host/Error.h"
#include "host/References.h"
#include "host/UndoText.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"

namespace facetta {

void dropAxes(ToolState& state) {
    state.axes = {};
    state.committed = false;
    state.zone = ToolZone::Canvas;
}

void moveOriginTo(ToolState& state, AIRealPoint point) {
    const Point origin = clampToCanvas(harden(widen(point)));
    state.axes.originX = origin.x;
    state.axes.originY = origin.y;
}

void previewAt(ToolSession& session, AIRealPoint point) {
    session.state.zone = ToolZone::Canvas;
    session.state.axes = {.angle = session.preferences.angle,
                          .axisCount = session.preferences.count};
    moveOriginTo(session.state, point);
}

void followCurrentLayer(ToolState& state) {
    if (state.axes.provisional || !documentIsOpen()) return;
    SymmetryAxes stored;
    if (LayerAxesStore::read(nullptr, stored)) {
        state.axes = stored;
        state.committed = true;
    } else if (state.axes.onLayer) {
        dropAxes(state);
    }
}

void rememberAsDefault(ToolSession& session) {
    session.preferences.angle = session.state.axes.angle;
    session.preferences.count = session.state.axes.axisCount;
}

void applyToSelection(ToolSession& session) {
    if (!session.licence.allows(GuardedAction::ApplyToSelection) || selectionIsEmpty()) return;
    MirrorEngine(session.mirroring)
        .run(/*selectionMode*/ true, /*keepCurrentAxes*/ false, /*option*/ false, nullptr);
    dropAxes(session.state);
    ai::nameUndoStep("Apply Symmetry Axes to Selection");
}

void applyToLayer(ToolSession& session) {
    if (!session.licence.allows(GuardedAction::ApplyToLayer)) return;
    attachAxes(session.mirroring, session.preferences.autoMirror);
    session.state.axes.provisional = false;
    session.state.committed = true;
    ai::nameUndoStep("Apply Symmetry Axes to Layer");
}

bool selectionIsEmpty() {
    if (!documentIsOpen()) return true;
    ai::ArtSet selection;
    ai::check(ai::suites.artSet->NewArtSet(selection.put()));
    ai::check(ai::suites.artSet->SelectedArtSet(selection.get()));
    std::size_t count = 0;
    ai::check(ai::suites.artSet->CountArtSet(selection.get(), &count));
    return count == 0;
}

} // namespace facetta
