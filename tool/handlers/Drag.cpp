#include "tool/handlers/Drag.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UndoText.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ViewScale.h"
#include "tool/InfoDisplay.h"
#include "tool/Zones.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/LayerEdit.h"
#include "tool/axes/Reposition.h"
#include "tool/drawing/Annotations.h"
#include "tool/drawing/OnCanvasDialog.h"
#include "tool/handlers/DragKeys.h"
#include "tool/handlers/Gesture.h"
#include "tool/snapping/Constraints.h"
#include "tool/snapping/DragTarget.h"

#include <array>

namespace facetta {
namespace {

using platform::Key;

bool samePoint(AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; }

void escape(ToolSession& session) {
    takeBack(session);
    if (axesOnLayer(session.state)) {
        session.updatePanel();
        ai::nameUndoStep("Cancel Edit Symmetry Axes");
    }
    updateZone(session);
    axesChanged(session);
}

/// The first message whose cursor is not where the press was makes it a drag.
void beginDrag(ToolSession& session) {
    ToolState& state = session.state;
    Gesture& gesture = *state.gesture;
    gesture.dragging = true;
    gesture.snapDistance = kSnapPixels / currentZoom();
    gesture.originStart = narrow(pageAxes(state.axes).origin);
    state.secondClick = false;
    if (gesture.takesArt) beginReposition(state);
}

/// Does the drag turn a line about a point? Else it moves the origin.
bool turns(const ToolSession& session) {
    const ToolZone zone = session.state.zone;
    return zone == ToolZone::Axis ||
           (zone == ToolZone::Canvas && !session.preferences.initialDragMovesOrigin);
}

Drag startOf(const ToolSession& session) {
    const ToolState& state = session.state;
    const Gesture& gesture = *state.gesture;
    const bool isNew = state.zone == ToolZone::Canvas;
    return {.turns = turns(session),
            .movesPivot = !isNew,
            .pivot = isNew ? widen(gesture.anchor) : pageAxes(state.axes).origin,
            .originStart = widen(gesture.originStart),
            .previousSnapped = widen(gesture.snapped),
            .latches = gesture.latches,
            .snapDistance = gesture.snapDistance,
            .constrainAngle = session.host.constrainAngle,
            .snapToPerpendiculars = session.preferences.snapPerpendicular,
            .suppressed = gesture.smartGuidesSuppressed};
}

/// What the next message starts from.
void keep(ToolState& state, const DragTarget& found) {
    Gesture& gesture = *state.gesture;
    gesture.snapped = narrow(found.snapped);
    gesture.latches = found.latches;
    if (found.moves && state.zone == ToolZone::Canvas) gesture.anchor = narrow(found.pivot);
    if (!found.hint) return;
    if (*found.hint == HintId::None)
        hideHint(state.hint);
    else
        showHint(state.hint, *found.hint, platform::ticks());
}

/// The angle of the first axis that takes the grabbed line (0 of new axes) through the target.
void turnTowards(ToolSession& session, const DragTarget& found) {
    ToolState& state = session.state;
    if (found.moves) return; // with Space the axes move and do not turn
    if (!found.constrainedAngle && found.target == found.pivot) return; // no direction to take
    const double line = found.constrainedAngle.value_or(directionTo(found.pivot, found.target));
    const double grabbed = state.zone == ToolZone::Canvas ? 0.0 : state.grabIndex;
    state.axes.angle = normaliseAngle(line - grabbed * sectorAngle(state.axes.axisCount));
    session.preferences.angle = state.axes.angle;
}

void shapeAxes(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    const Drag drag = startOf(session);
    const DragTarget found =
        findDragTarget(drag, message.cursor, cursorSnap(session, message), session.keys);
    keep(state, found);
    if (!drag.turns)
        moveOriginTo(state, found.target);
    else if (found.moves || state.zone == ToolZone::Canvas)
        moveOriginTo(state, found.pivot);
    if (drag.turns) turnTowards(session, found);
    if (repositionMode(state)) carryLayerArt(state);
    showDragInfo(session.host, drag.turns ? found.pivot : drag.originStart, found.target);
    axesChanged(session);
}

void dragDialog(ToolSession& session, const AIToolMessage&) {
    const AIPoint from = viewPixelOf(session.view, session.state.previousCursor);
    const AIPoint to = viewPixelOf(session.view, session.state.cursor);
    moveDialog(session, {to.h - from.h, to.v - from.v});
}

void dragOverButtons(ToolSession& session, const AIToolMessage&) { updateHoverItem(session); }

void dragNothing(ToolSession&, const AIToolMessage&) {}

using DragStep = void (*)(ToolSession&, const AIToolMessage&);
constexpr std::array<DragStep, 8> kDrags{
    shapeAxes,       // Canvas
    dragNothing,     // Sector
    dragNothing,     // SectorPicked
    shapeAxes,       // Axis
    shapeAxes,       // Origin
    dragDialog,      // DialogTitle
    dragOverButtons, // DialogButton
    dragNothing,     // LayerLocked
};

void drag(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    Gesture& gesture = *state.gesture;
    if (shapesAxes(state.zone) && session.keys.isDown(Key::Escape)) return escape(session);
    changeCountByKeys(session);
    toggleSmartGuides(session, message);
    if (state.zone == ToolZone::Axis && session.keys.isDown(Key::A)) setConstrainAngle(session);

    const bool moves = gesture.dragging || !samePoint(state.cursor, gesture.mouseDown);
    if (!moves && !gesture.recounted) return;
    if (moves && !gesture.dragging) beginDrag(session);
    if (state.activity == Activity::ShowingLayerAxes && isOnAxes(state.zone))
        beginLayerEdit(session, gesture.before.axes);
    ai::check(ai::suites.undo->UndoChanges());
    if (layerEditInProgress(state) && isOnAxes(state.zone)) takeAxesOffLayer(session);
    if (!moves) return; // another number of axes is all that was asked for
    kDrags.at(static_cast<std::size_t>(state.zone))(session, message);
    showZoneCursor(session);
    invalidateBetween(session, state.previousCursor, state.cursor);
}

} // namespace

void mouseDrag(ToolSession& session, const AIToolMessage& message) {
    inGesture(session, [&] {
        if (!gestureGoesOn(session)) return;
        storeCursor(session.state, message.cursor);
        drag(session, message);
    });
}

} // namespace facetta
