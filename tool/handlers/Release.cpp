#include "tool/handlers/Release.h"

#include "host/Suites.h"
#include "host/UndoText.h"
#include "symmetry/LayerArt.h"
#include "tool/ToolCursor.h"
#include "tool/Zones.h"
#include "tool/axes/Apply.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/LayerEdit.h"
#include "tool/axes/NumericEdit.h"
#include "tool/axes/Reposition.h"
#include "tool/handlers/Gesture.h"
#include "tool/snapping/CursorSnap.h"

#include <array>
#include <utility>

namespace facetta {
namespace {

void releaseNewAxes(ToolSession& session) {
    happen(session.state, Event::NewAxesReleased);
    session.state.secondClick = false;
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
    if (!state.gesture->dragging && !state.gesture->recounted) return clickAxes(session);
    if (repositionMode(state)) {
        keepReposition(state);
        ai::nameUndoStep("Reposition Symmetry Axes");
    } else {
        renewGuides(state);
        ai::nameUndoStep("Edit Symmetry Axes");
    }
    axesChanged(session);
}

void releaseSector(ToolSession& session) {
    if (!axesOnLayer(session.state)) return;
    changeActiveSector(session.mirroring, session.state.gesture->pickedSector);
    ai::nameUndoStep("Change Symmetry Axes Active Sector");
}

void pressCancel(ToolSession& session) { cancelAxes(session, LayerCopies::AsTheyWere); }

void pressNothing(ToolSession&) {}

using ReleaseStep = void (*)(ToolSession&);

constexpr std::array<ReleaseStep, 5> kButtons{
    pressNothing,     // None
    pressNothing,     // Title
    applyToSelection, // ApplyToSelection
    applyToLayer,     // ApplyToLayer
    pressCancel,      // Cancel
};

void releaseButton(ToolSession& session) {
    updateHoverItem(session);
    kButtons.at(static_cast<std::size_t>(session.state.hoverItem))(session);
    session.updatePanel();
    showCursor(session, ToolCursor::Base);
}

void releaseNothing(ToolSession&) {}

constexpr std::array<ReleaseStep, 8> kReleases{
    releaseNewAxes, // Canvas
    releaseNothing, // Sector
    releaseSector,  // SectorPicked
    releaseAxes,    // Axis
    releaseAxes,    // Origin
    releaseNothing, // DialogTitle
    releaseButton,  // DialogButton
    releaseNothing, // LayerLocked
};

/// What was taken back stays so; new axes follow the cursor again.
void releaseCancelled(ToolSession& session, const AIToolMessage& message) {
    if (session.state.activity != Activity::FollowingCursor || !session.state.place.editable)
        return;
    previewAt(session, snapToAnything(session, message));
}

void release(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    cursorSnap(session, message).clearFeedback();
    const bool goesOn = gestureGoesOn(session);
    if (!session.licence.allows(GuardedAction::ToolMouseUp)) {
        if (goesOn) takeBack(session);
        return axesChanged(session);
    }
    if (goesOn)
        kReleases.at(static_cast<std::size_t>(state.zone))(session);
    else
        releaseCancelled(session, message);
    updateZone(session);
    redrawOverlay(session.view);
}

} // namespace

void mouseUp(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    if (!state.gesture) return; // it ended before, with the tool or the document
    storeCursor(state, message.cursor);
    try {
        inGesture(session, [&] { release(session, message); });
    } catch (...) {
        state.gesture.reset();
        throw;
    }
    state.gesture.reset();
}

} // namespace facetta
