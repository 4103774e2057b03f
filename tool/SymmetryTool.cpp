#include "tool/SymmetryTool.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/CurrentAxes.h"
#include "tool/Gesture.h"
#include "tool/Zones.h"
#include "tool/drawing/Annotations.h"
#include "tool/drawing/Preview.h"

#include <algorithm>
#include <array>

namespace facetta {
namespace {

using platform::Key;

/// May art be put where the host would put it now?
bool insertionPointIsEditable() {
    AIArtHandle art = nullptr;
    ai::int16 order = 0;
    AIBoolean editable = 0;
    ai::check(ai::suites.art->GetInsertionPoint(&art, &order, &editable));
    return editable != 0;
}

/// What the tool remembers of a gesture.
void forgetGesture(ToolState& state) {
    state.dragging = false;
    state.cancelled = false;
    state.perpendicularSnapFound = false;
    state.smartGuidesSuppressed = false;
    state.latches = {};
}

void pressCanvas(ToolSession& session, const AIToolMessage& message) {
    // The layer may have been locked since the cursor moved last.
    if (!insertionPointIsEditable()) {
        session.state.zone = ToolZone::LayerLocked;
        return;
    }
    ToolState& state = session.state;
    state.anchor = state.snapped = snapToAnything(session, message);
    previewAt(session, state.anchor);
    axesChanged(session);
}

/// The sector under the cursor becomes the active one.
void pressSector(ToolSession& session, const AIToolMessage&) {
    ToolState& state = session.state;
    state.zone = ToolZone::Sector;
    if (!session.keys.isDown(Key::Alt)) return;
    const PageAxes axes = pageAxes(state.axes);
    state.pickedSector = sectorIndexOf(axes, widen(state.cursor));
    if (state.pickedSector == 0) return;
    state.zone = ToolZone::SectorPicked;
    state.axes.angle = normaliseAngle(axes.angle + state.pickedSector * sectorAngle(axes));
    session.preferences.angle = state.axes.angle;
    if (!state.axes.onLayer) axesChanged(session);
}

void pressAxes(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    state.anchor = state.snapped = snapToAnything(session, message);
    state.reposition = state.axes.onLayer && session.keys.isDown(Key::Alt);
}

void pressNothing(ToolSession&, const AIToolMessage&) {}

using Press = void (*)(ToolSession&, const AIToolMessage&);
constexpr std::array<Press, 8> kPresses{
    pressCanvas,  // Canvas
    pressSector,  // Sector
    pressSector,  // SectorPicked
    pressAxes,    // Axis
    pressAxes,    // Origin
    pressNothing, // DialogTitle
    pressNothing, // DialogButton
    pressNothing, // LayerLocked
};

void press(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    kPresses.at(static_cast<std::size_t>(state.zone))(session, message);
    showZoneCursor(session);
    redrawOverlay(session.view);
    ai::check(ai::suites.document->RedrawDocument());
}

} // namespace

void selectTool(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    forgetGesture(state);
    state.toolSelected = true;
    state.secondClick = false;
    state.sectorHandleHighlighted = false;
    state.hoverItem = DialogItem::None;
    state.cursor = message.cursor;
    state.selectionEmpty = selectionIsEmpty();
    followCurrentLayer(state);
    session.updatePanel();
}

void deselectTool(ToolSession& session) {
    ToolState& state = session.state;
    state.toolSelected = false;
    if (!state.axes.onLayer) {
        dropAxes(state);
        session.updatePanel();
    }
    clearPreview(state);
    redrawOverlay(session.view);
}

void trackCursor(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    storeCursor(state, message.cursor);
    if (!insertionPointIsEditable()) {
        if (state.zone != ToolZone::LayerLocked) redrawOverlay(session.view); // new axes go
        state.zone = ToolZone::LayerLocked;
        showZoneCursor(session);
    } else if (!hasAxes(state)) {
        previewAt(session, snapToAnything(session, message));
        showZoneCursor(session);
        redrawOverlay(session.view);
    } else {
        if (!state.preview.captured) axesChanged(session); // the art has changed
        updateZone(session);
    }
    invalidateBetween(session, state.previousCursor, state.cursor);
}

void mouseDown(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    if (!session.licence.allows(GuardedAction::ToolMouseDown)) {
        state.cancelled = true; // what follows until the release is refused as well
        return;
    }
    forgetGesture(state);
    state.mouseDown = state.previousCursor = state.cursor = message.cursor;
    state.dragBackup = state.axes;
    inGesture(session, [&] { press(session, message); });
}

void editOptions(ToolSession& session) {
    ToolState& state = session.state;
    const bool pending = state.axes.provisional && !state.committed && state.axes.axisCount != 0;
    const bool asksToApply = !session.keys.isDown(Key::Control) && !session.keys.isDown(Key::Shift);
    if (!pending || !asksToApply) {
        session.dialogs.preferences();
        return;
    }
    if (session.preferences.applyToSelection)
        applyToSelection(session);
    else
        applyToLayer(session);
    redrawOverlay(session.view);
    session.updatePanel();
}

void changeAxisCount(ToolSession& session, int step) {
    SymmetryAxes& axes = session.state.axes;
    if (!axes.onLayer) {
        const int count = axes.axisCount != 0 ? axes.axisCount : session.preferences.count;
        session.preferences.count = std::clamp(count + step, kFewestAxes, kMostAxes);
        if (axes.axisCount != 0) axes.axisCount = session.preferences.count;
        axesChanged(session);
    }
    session.updatePanel();
}

} // namespace facetta
