#include "tool/SymmetryTool.h"

#include "host/Suites.h"
#include "host/UndoText.h"
#include "symmetry/LayerArt.h"
#include "tool/CurrentAxes.h"
#include "tool/Gesture.h"
#include "tool/LayerEdit.h"
#include "tool/NumericEdit.h"
#include "tool/Reposition.h"
#include "tool/ToolCursor.h"
#include "tool/Zones.h"
#include "tool/snapping/CursorSnap.h"

#include <array>
#include <utility>

namespace facetta {
namespace {

void releaseNewAxes(ToolSession& session) {
    ToolState& state = session.state;
    state.axes.provisional = true;
    state.committed = false;
    state.secondClick = false;
    state.zone = ToolZone::Axis;
    axesChanged(session);
    session.updatePanel();
}

/// The second click on the axes opens the dialog; a drag between the two makes them separate.
void clickAxes(ToolSession& session) {
    if (!std::exchange(session.state.secondClick, true)) return;
    session.state.secondClick = false;
    editAxesByNumbers(session);
}

void releaseAxes(ToolSession& session) {
    ToolState& state = session.state;
    rememberAsDefault(session);
    if (!state.dragging) return clickAxes(session);
    if (state.reposition) {
        keepReposition(state);
        ai::nameUndoStep("Reposition Symmetry Axes");
    } else {
        renewGuides(state, state.axes);
        ai::nameUndoStep("Edit Symmetry Axes");
    }
    axesChanged(session);
}

void releaseSector(ToolSession& session) {
    if (!session.state.axes.onLayer) return;
    changeActiveSector(session.mirroring, session.state.pickedSector);
    ai::nameUndoStep("Change Symmetry Axes Active Sector");
}

void pressCancel(ToolSession& session) {
    if (session.state.layerEdit) return restoreLayer(session);
    dropAxes(session.state);
    previewAt(session, session.state.cursor);
}

void pressApplyToSelection(ToolSession& session) {
    if (!session.state.selectionEmpty) applyToSelection(session);
}

void pressNothing(ToolSession&) {}

using Release = void (*)(ToolSession&);

constexpr std::array<Release, 5> kButtons{
    pressNothing,          // None
    pressNothing,          // Title
    pressApplyToSelection, // ApplyToSelection
    applyToLayer,          // ApplyToLayer
    pressCancel,           // Cancel
};

void releaseButton(ToolSession& session) {
    updateHoverItem(session);
    kButtons.at(static_cast<std::size_t>(session.state.hoverItem))(session);
    session.updatePanel();
    showCursor(session, ToolCursor::Base);
}

void releaseNothing(ToolSession&) {}

constexpr std::array<Release, 8> kReleases{
    releaseNewAxes, // Canvas
    releaseNothing, // Sector
    releaseSector,  // SectorPicked
    releaseAxes,    // Axis
    releaseAxes,    // Origin
    releaseNothing, // DialogTitle
    releaseButton,  // DialogButton
    releaseNothing, // LayerLocked
};

/// After Escape new axes follow the cursor again, and those there are stay as they are.
void releaseCancelled(ToolSession& session, const AIToolMessage& message) {
    if (session.state.zone != ToolZone::Canvas) return;
    previewAt(session, snapToAnything(session, message));
    showZoneCursor(session);
}

void release(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    clearSnapFeedback(state.snapPointForm, session.view.handle, message.event);
    if (!session.licence.allows(GuardedAction::ToolMouseUp)) {
        if (state.cancelled) return; // already, or the press was refused as well
        cancelGesture(session);
        return axesChanged(session);
    }
    if (state.cancelled)
        releaseCancelled(session, message);
    else
        kReleases.at(static_cast<std::size_t>(state.zone))(session);
    updateZone(session);
    redrawOverlay(session.view);
}

/// Whatever became of it, the gesture is over.
void endGesture(ToolState& state) noexcept {
    state.dragging = false;
    state.cancelled = false;
    endReposition(state);
}

} // namespace

void mouseUp(ToolSession& session, const AIToolMessage& message) {
    storeCursor(session.state, message.cursor);
    try {
        inGesture(session, [&] { release(session, message); });
    } catch (...) {
        endGesture(session.state);
        throw;
    }
    endGesture(session.state);
}

} // namespace facetta
