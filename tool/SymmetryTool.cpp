#include "tool/SymmetryTool.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UndoText.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/CurrentAxes.h"
#include "tool/CursorSnap.h"
#include "tool/HitTest.h"

#include <algorithm>

namespace facetta {
namespace {

/// May art be put where the host would put it now?
bool insertionPointIsEditable() {
    AIArtHandle art = nullptr;
    ai::int16 order = 0;
    AIBoolean editable = 0;
    ai::check(ai::suites.art->GetInsertionPoint(&art, &order, &editable));
    return editable != 0;
}

AIRealPoint snapToAnything(ToolSession& session, const AIToolMessage& message) {
    return snapped(session.state.snapPointForm, session.view.handle, message.cursor, message.event,
                   kSnapToAnything);
}

void storeCursor(ToolState& state, AIRealPoint cursor) {
    state.previousCursor = state.cursor;
    state.cursor = cursor;
}

} // namespace

void selectTool(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    state.toolSelected = true;
    state.dragging = false;
    state.cancelled = false;
    state.selectionEmpty = selectionIsEmpty();
    state.cursor = message.cursor;
    followCurrentLayer(state);
}

void deselectTool(ToolSession& session) {
    session.state.toolSelected = false;
    if (!session.state.axes.onLayer) dropAxes(session.state);
    redrawOverlay(session.view);
}

void trackCursor(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    storeCursor(state, message.cursor);
    if (!insertionPointIsEditable())
        state.zone = ToolZone::LayerLocked;
    else if (!hasAxes(state))
        previewAt(session, snapToAnything(session, message));
    else
        updateZone(session);
    redrawOverlay(session.view);
}

void mouseDown(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    state.dragging = false;
    state.cancelled = false;
    state.mouseDown = state.previousCursor = state.cursor = message.cursor;
    switch (state.zone) {
    case ToolZone::Canvas:
        if (state.axes.axisCount == 0) previewAt(session, message.cursor); // no tracking before
        state.anchor = snapToAnything(session, message);
        state.dragBackup = state.axes;
        previewAt(session, state.anchor);
        break;
    case ToolZone::Axis:
    case ToolZone::Origin:
        state.anchor = snapToAnything(session, message);
        state.dragBackup = state.axes;
        break;
    default:
        break;
    }
    redrawOverlay(session.view);
    ai::check(ai::suites.document->RedrawDocument());
}

void mouseUp(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    clearSnapFeedback(state.snapPointForm, session.view.handle, message.event);
    if (!session.licence.allows(GuardedAction::ToolMouseUp)) return;
    if (state.cancelled) {
        state.cancelled = false;
        if (state.zone == ToolZone::Canvas) previewAt(session, snapToAnything(session, message));
    } else if (state.zone == ToolZone::Canvas) {
        state.axes.provisional = true;
        state.committed = false;
        state.zone = ToolZone::Axis;
    } else if (state.axes.provisional && state.dragging) {
        rememberAsDefault(session);
        ai::nameUndoStep("Edit Symmetry Axes");
    }
    state.dragging = false;
    storeCursor(state, message.cursor);
    updateZone(session);
    redrawOverlay(session.view);
}

void editOptions(ToolSession& session) {
    using platform::Key;
    const ToolState& state = session.state;
    const bool pending = state.axes.provisional && !state.committed && state.axes.axisCount != 0;
    // What is not an order to apply opens the preferences dialog, once the toolkit has dialogs.
    if (!pending || session.keys.isDown(Key::Control) || session.keys.isDown(Key::Shift)) return;
    if (session.preferences.applyToSelection)
        applyToSelection(session);
    else
        applyToLayer(session);
    redrawOverlay(session.view);
}

void changeAxisCount(ToolSession& session, int step) {
    SymmetryAxes& axes = session.state.axes;
    if (axes.onLayer) return;
    session.preferences.count =
        std::clamp(session.preferences.count + step, kFewestAxes, kMostAxes);
    if (axes.axisCount != 0) axes.axisCount = session.preferences.count;
    redrawOverlay(session.view);
}

void updateZone(ToolSession& session) {
    ToolState& state = session.state;
    if (!hasAxes(state) || state.axes.axisCount == 0) return;
    const ZoneUnder under =
        zoneUnder(inArtSpace(state.axes), widen(state.cursor), kGrabPixels / currentZoom());
    state.zone = under.zone;
    state.grabIndex = under.grabIndex;
    state.sectorHandleHighlighted = under.onSectorHandle;
}

} // namespace facetta
