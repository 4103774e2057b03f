#include "tool/axes/LayerActions.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UndoText.h"
#include "host/suites/AIToolSuite.h"
#include "symmetry/AxisGuides.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "tool/axes/Apply.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/LayerEdit.h"

#include <algorithm>

namespace facetta {
namespace {

void detachAxes(ToolSession& session, AILayerHandle layer, GuidesAlong guides) {
    releaseLayer(session.mirroring, layer, ResolveTopLevel::No);
    removeAxisGuides(layer, /*untagOnly*/ guides == GuidesAlong::BecomeTheUsers);
}

void showChange(ToolSession& session) {
    axesChanged(session);
    session.updatePanel();
}

} // namespace

void takeTool(ToolSession& session) {
    if (session.state.toolSelected) return;
    ai::check(ai::suites.tool->SetSelectedTool(session.mirroring.ownTool));
}

void editAxes(ToolSession& session, const SymmetryAxes& changed, CountsAs countsAs) {
    ToolState& state = session.state;
    const bool ofLayer = layerAxesActive(state);
    if (state.axes.axisCount == 0 || (ofLayer && !state.place.editable))
        return session.updatePanel(); // its fields show again what holds
    if (ofLayer) {
        beginLayerEdit(session, state.axes);
        takeAxesOffLayer(session);
        ai::nameUndoStep("Edit Symmetry Axes");
        state.zone = ToolZone::Axis;
    }
    hold(state, {state.activity, changed, state.edit});
    if (!ofLayer && layerEditInProgress(state) && layerHasAxisGuides()) {
        renewGuides(state); // a drag before this has laid them along the axes as they were
        ai::nameUndoStep("Edit Symmetry Axes");
    }
    if (ofLayer) {
        state.editCountsAs = countsAs;
        takeTool(session);
    }
    showChange(session);
}

void setAutoMirror(ToolSession& session, bool autoMirror) {
    if (!session.state.place.editable) return;
    session.state.axes.autoMirror = autoMirror;
    LayerAxesStore::write(session.state.axes);
    if (autoMirror) mirrorLayerNow(session);
}

void mirrorLayerNow(ToolSession& session) {
    if (session.state.place.editable) regenerateLayer(session.mirroring, /*option*/ false, nullptr);
}

void removeLayerAxes(ToolSession& session, GuidesAlong guides) {
    if (!session.state.place.editable) return;
    // They belong to all sublayers, whichever of these is the current one.
    detachAxes(session, topLevelLayer(nullptr), guides);
    ai::nameUndoStep("Remove Symmetry Axes from Layer");
    showWhatIsLeft(session);
    showChange(session);
}

void removeAllLayerAxes(ToolSession& session, GuidesAlong guides) {
    if (!documentIsOpen()) return;
    for (const AILayerHandle layer : topLevelLayers())
        detachAxes(session, layer, guides);
    ai::nameUndoStep("Remove All Layer Symmetry Axes");
    if (axesPending(session.state)) happen(session.state, Event::AxesDropped);
    showWhatIsLeft(session);
    showChange(session);
}

bool someLayerHasAxes() {
    return documentIsOpen() && std::ranges::any_of(topLevelLayers(), LayerAxesStore::hasAxes);
}

void pasteAsPending(ToolSession& session, const SymmetryAxes& copied) {
    takeTool(session);
    ToolState& state = session.state;
    if (!axesPending(state)) happen(state, Event::AxesOffered);
    hold(state, {state.activity, copied, state.edit});
    state.zone = ToolZone::Axis;
    showChange(session);
}

void addGuides(const ToolState& state) {
    addAxisGuides(state.axes);
    ai::nameUndoStep("Add Guides along Layer Axes");
}

void removeGuides() {
    removeAxisGuides(nullptr, /*untagOnly*/ false);
    ai::nameUndoStep("Remove Guides from Layer Axes");
}

} // namespace facetta
