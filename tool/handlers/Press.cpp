#include "tool/handlers/Press.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/Zones.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"
#include "tool/handlers/Gesture.h"

#include <array>

namespace facetta {
namespace {

using platform::Key;

void snapPress(ToolSession& session, const AIToolMessage& message) {
    Gesture& gesture = *session.state.gesture;
    gesture.anchor = gesture.snapped = snapToAnything(session, message);
}

void pressCanvas(ToolSession& session, const AIToolMessage& message) {
    snapPress(session, message);
    previewAt(session, session.state.gesture->anchor);
    happen(session.state, Event::CanvasPressed);
    axesChanged(session);
}

/// The sector under the cursor becomes the active one.
void pressSector(ToolSession& session, const AIToolMessage&) {
    ToolState& state = session.state;
    if (!session.keys.isDown(Key::Alt)) return;
    const PageAxes axes = pageAxes(state.axes);
    const int picked = sectorIndexOf(axes, widen(state.cursor));
    if (picked == 0) return;
    state.gesture->pickedSector = picked;
    state.zone = ToolZone::SectorPicked;
    state.axes.angle = normaliseAngle(axes.angle + picked * sectorAngle(axes));
    session.preferences.angle = state.axes.angle;
    if (!axesOnLayer(state)) axesChanged(session);
}

void pressAxes(ToolSession& session, const AIToolMessage& message) {
    snapPress(session, message);
    session.state.gesture->takesArt = axesOnLayer(session.state) && session.keys.isDown(Key::Alt);
}

void pressNothing(ToolSession&, const AIToolMessage&) {}

using PressStep = void (*)(ToolSession&, const AIToolMessage&);
constexpr std::array<PressStep, 8> kPresses{
    pressCanvas,  // Canvas
    pressSector,  // Sector
    pressSector,  // SectorPicked
    pressAxes,    // Axis
    pressAxes,    // Origin
    pressNothing, // DialogTitle
    pressNothing, // DialogButton
    pressNothing, // LayerLocked
};

void beginGesture(ToolState& state, AIRealPoint cursor) {
    state.gesture.emplace();
    state.gesture->place = state.place;
    state.gesture->before = holdingOf(state);
    state.gesture->mouseDown = cursor;
}

void press(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    kPresses.at(static_cast<std::size_t>(state.zone))(session, message);
    showZoneCursor(session);
    redrawOverlay(session.view);
    ai::check(ai::suites.document->RedrawDocument());
}

} // namespace

void mouseDown(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    endLostGesture(state);
    if (!session.licence.allows(GuardedAction::ToolMouseDown)) {
        state.gesture.emplace().cancelled = true; // what follows is refused as well
        return;
    }
    state.cursor = state.previousCursor = message.cursor;
    if (!state.toolSelected) happen(state, Event::ToolTaken); // the host has given it the press
    followDocument(session);
    if (state.activity == Activity::FollowingCursor) previewAt(session, message.cursor);
    findZone(session);
    beginGesture(state, message.cursor);
    inGesture(session, [&] { press(session, message); });
}

} // namespace facetta
