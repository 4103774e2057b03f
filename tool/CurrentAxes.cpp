#include "tool/CurrentAxes.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/References.h"
#include "host/UndoText.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "tool/LayerEdit.h"
#include "tool/Reposition.h"
#include "tool/drawing/Preview.h"
#include "tool/snapping/CursorSnap.h"

namespace facetta {
namespace {

void showLayerAxes(ToolState& state, const SymmetryAxes& stored) {
    endLayerEdit(state);
    state.axes = stored;
    state.committed = true;
}

/// Pending axes that are a layer's: is that layer still waiting for them?
void followEditedLayer(ToolState& state) {
    const AILayerHandle layer = topLevelLayer(nullptr);
    SymmetryAxes stored;
    if (layer != state.editedLayer)
        endLayerEdit(state);
    else if (LayerAxesStore::read(layer, stored))
        showLayerAxes(state, stored); // undone
}

} // namespace

void dropAxes(ToolState& state) {
    state.axes = {};
    state.committed = false;
    state.secondClick = false;
    state.sectorHandleHighlighted = false;
    state.hoverItem = DialogItem::None;
    state.zone = ToolZone::Canvas;
    endLayerEdit(state);
    endReposition(state);
    clearPreview(state);
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
    if (!documentIsOpen()) return;
    if (state.layerEdit) return followEditedLayer(state);
    if (state.axes.provisional) return;
    SymmetryAxes stored;
    if (LayerAxesStore::read(nullptr, stored))
        showLayerAxes(state, stored);
    else if (state.axes.onLayer)
        dropAxes(state);
}

void axesChanged(ToolSession& session) {
    refreshPreview(session);
    redrawOverlay(session.view);
}

void rememberAsDefault(ToolSession& session) {
    session.preferences.angle = session.state.axes.angle;
    session.preferences.count = session.state.axes.axisCount;
}

void applyToSelection(ToolSession& session) {
    if (!session.licence.allows(GuardedAction::ApplyToSelection) || selectionIsEmpty()) return;
    MirrorEngine(session.mirroring)
        .run(/*selectionMode*/ true, /*keepCurrentAxes*/ false, /*option*/ false, nullptr);
    ai::nameUndoStep("Apply Symmetry Axes to Selection");
    dropAxes(session.state);
    previewAt(session, session.state.cursor);
}

void applyToLayer(ToolSession& session) {
    if (!session.licence.allows(GuardedAction::ApplyToLayer)) return;
    reclaimCopies(session.state);
    attachAxes(session.mirroring, session.preferences.autoMirror);
    ai::nameUndoStep("Apply Symmetry Axes to Layer");
    session.state.axes.provisional = false;
    session.state.committed = true;
    endLayerEdit(session.state);
}

AIRealPoint snapToAnything(ToolSession& session, const AIToolMessage& message) {
    return snapped(session.state.snapPointForm, session.view.handle, message.cursor, message.event,
                   kSnapToAnything);
}

bool selectionIsEmpty() {
    if (!documentIsOpen()) return true;
    ai::ArtSet selection;
    ai::checkLent(ai::suites.artSet->NewArtSet(selection.put()), selection);
    ai::check(ai::suites.artSet->SelectedArtSet(selection.get()));
    std::size_t count = 0;
    ai::check(ai::suites.artSet->CountArtSet(selection.get(), &count));
    return count == 0;
}

} // namespace facetta
