#include "tool/SymmetryTool.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/Constraints.h"
#include "tool/CurrentAxes.h"
#include "tool/CursorSnap.h"

#include <algorithm>

namespace facetta {
namespace {

using platform::Key;
using platform::KeyState;

/// Within this many view pixels the host's own art attracts the dragged axis.
constexpr double kSnapPixels = 12.0;

bool samePoint(AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; }

/// Axes on a layer are not dragged: they would have to be taken off it first.
bool isDraggable(const ToolState& state) {
    const bool pending =
        state.axes.provisional && (state.zone == ToolZone::Axis || state.zone == ToolZone::Origin);
    return state.zone == ToolZone::Canvas || pending;
}

/// Escape: everything is as it was at the press, and nothing more happens until the release.
void cancelDrag(ToolSession& session) {
    ToolState& state = session.state;
    state.cancelled = true;
    ai::check(ai::suites.undo->UndoChanges());
    state.axes = state.dragBackup;
    if (state.zone == ToolZone::Canvas) state.axes.provisional = false;
    rememberAsDefault(session);
    updateZone(session);
    redrawOverlay(session.view);
}

/// The count that the keys held ask for: the lowest digit, else one more or fewer.
ai::int32 countAskedFor(const KeyState& keys, ai::int32 count) {
    for (int digit = 1; digit <= 9; ++digit)
        if (keys.isDown(static_cast<Key>(static_cast<int>(Key::Digit1) + digit - 1))) return digit;
    if (keys.isDown(Key::RightBracket)) ++count;
    if (keys.isDown(Key::LeftBracket)) --count;
    return std::clamp(count, kFewestAxes, kMostAxes);
}

void setCount(ToolSession& session, const KeyState& keys) {
    session.state.axes.axisCount = countAskedFor(keys, session.state.axes.axisCount);
    session.preferences.count = session.state.axes.axisCount;
}

/// The first message whose cursor is not where the press was makes it a drag.
bool beginsOrGoesOn(ToolState& state) {
    if (state.dragging) return true;
    if (samePoint(state.cursor, state.mouseDown)) return false;
    state.dragging = true;
    state.snapDistance = kSnapPixels / currentZoom();
    return true;
}

bool movesOrigin(const ToolSession& session) {
    return session.state.zone == ToolZone::Origin ||
           (session.state.zone == ToolZone::Canvas && session.preferences.initialDragMovesOrigin);
}

/// Where an origin drag starts from: the fixed point of the Shift constraint.
Point originAtPress(const ToolState& state) {
    return state.zone == ToolZone::Canvas ? widen(state.anchor)
                                          : originOf(inArtSpace(state.dragBackup));
}

void dragOrigin(ToolSession& session, Point target, const KeyState& keys) {
    if (keys.isDown(Key::Shift))
        target =
            constrain(originAtPress(session.state), target, session.host.constrainAngle).target;
    moveOriginTo(session.state, narrow(target));
}

void dragAngle(ToolSession& session, Point target, const KeyState& keys) {
    ToolState& state = session.state;
    const bool isNew = state.zone == ToolZone::Canvas;
    const Point base = isNew ? widen(state.anchor) : originOf(inArtSpace(state.axes));
    if (target == base) return; // no direction to take
    double angle = keys.isDown(Key::Shift)
                       ? constrain(base, target, session.host.constrainAngle).angle
                       : directionTo(base, target);
    if (!isNew) angle -= state.grabIndex * halfStep(state.axes);
    state.axes.angle = normaliseAngle(angle);
    session.preferences.angle = state.axes.angle;
}

} // namespace

void mouseDrag(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    const KeyState& keys = session.keys;
    if (!isDraggable(state) || state.cancelled) return;
    if (keys.isDown(Key::Escape)) return cancelDrag(session);
    setCount(session, keys);
    state.previousCursor = state.cursor;
    state.cursor = message.cursor;
    if (!beginsOrGoesOn(state)) return redrawOverlay(session.view);
    ai::check(ai::suites.undo->UndoChanges());
    const Point target = widen(snapped(state.snapPointForm, session.view.handle, message.cursor,
                                       message.event, kSnapWhileDragging));
    if (movesOrigin(session))
        dragOrigin(session, target, keys);
    else
        dragAngle(session, target, keys);
    redrawOverlay(session.view);
}

} // namespace facetta
