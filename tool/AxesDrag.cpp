#include "tool/SymmetryTool.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UndoText.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/CurrentAxes.h"
#include "tool/Gesture.h"
#include "tool/LayerEdit.h"
#include "tool/Reposition.h"
#include "tool/Zones.h"
#include "tool/drawing/Annotations.h"
#include "tool/drawing/OnCanvasDialog.h"
#include "tool/snapping/Constraints.h"
#include "tool/snapping/DragTarget.h"

#include <array>

namespace facetta {
namespace {

using platform::Key;
using platform::KeyState;

/// Within this many view pixels art attracts what is dragged.
constexpr double kSnapPixels = 12.0;

bool samePoint(AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; }

void escape(ToolSession& session) {
    ToolState& state = session.state;
    hideHint(state.hint);
    cancelGesture(session);
    if (state.zone == ToolZone::Canvas) state.axes.provisional = false;
    if (state.axes.onLayer) {
        session.updatePanel();
        ai::nameUndoStep("Cancel Edit Symmetry Axes");
    }
    updateZone(session);
    axesChanged(session);
}

/// What the keys held make of the number of axes, and the hint that tells so.
struct CountChange {
    ai::int32 count = 0;
    HintId hint = HintId::None;
};

CountChange countAskedFor(const KeyState& keys, ai::int32 count) {
    for (int digit = 1; digit <= 9; ++digit)
        if (keys.isDown(static_cast<Key>(static_cast<int>(Key::Digit1) + digit - 1)))
            return {digit, HintId::SpecifyAxes};
    if (keys.isDown(Key::RightBracket) && count < kMostAxes)
        return {count + 1, HintId::IncreaseAxes};
    if (keys.isDown(Key::LeftBracket) && count > kFewestAxes)
        return {count - 1, HintId::DecreaseAxes};
    return {count, HintId::None};
}

void changeCountByKeys(ToolSession& session) {
    ToolState& state = session.state;
    if (!shapesAxes(state.zone) || state.reposition) return;
    const CountChange change = countAskedFor(session.keys, state.axes.axisCount);
    if (change.hint == HintId::None) return;
    showHint(state.hint, change.hint, platform::ticks());
    state.axes.axisCount = change.count;
    session.preferences.count = change.count;
    axesChanged(session);
}

/// The first message whose cursor is not where the press was makes it a drag. A layer's axes cannot
/// stay on it either once a key has given them another count.
bool beginsDrag(const ToolState& state) {
    return !samePoint(state.cursor, state.mouseDown) ||
           (state.axes.onLayer && state.axes.axisCount != state.dragBackup.axisCount);
}

void beginDrag(ToolSession& session) {
    ToolState& state = session.state;
    state.dragging = true;
    state.secondClick = false;
    state.snapDistance = kSnapPixels / currentZoom();
    state.originStart = narrow(pageAxes(state.axes).origin);
    if (!isOnAxes(state.zone)) return;
    if (state.reposition)
        beginReposition(state);
    else if (state.axes.onLayer)
        beginLayerEdit(session, state.dragBackup);
}

void applyToAxes(ToolSession& session) {
    if (session.state.reposition) carryLayerArt(session.state);
    axesChanged(session);
}

void dragOrigin(ToolSession& session) {
    moveOriginTo(session.state, session.state.target);
    applyToAxes(session);
}

/// The angle of the first axis that takes the grabbed line through the target; `grabIndex` is 0 for
/// new axes, whose first axis is dragged.
void turnTowardsTarget(ToolSession& session, Point base, double grabIndex) {
    ToolState& state = session.state;
    // With Space the axes move and do not turn.
    if (session.keys.isDown(Key::Space)) return;
    double angle = state.constrainedAngle;
    if (!session.keys.isDown(Key::Shift)) {
        const Point target = widen(state.target);
        if (target == base) return; // no direction to take
        angle = directionTo(base, target);
    }
    state.axes.angle = normaliseAngle(angle - grabIndex * sectorAngle(state.axes.axisCount));
    session.preferences.angle = state.axes.angle;
}

void dragNewAxes(ToolSession& session) {
    ToolState& state = session.state;
    if (session.preferences.initialDragMovesOrigin) return dragOrigin(session);
    moveOriginTo(state, state.anchor); // Space moves it
    turnTowardsTarget(session, widen(state.anchor), 0.0);
    applyToAxes(session);
}

void dragAxis(ToolSession& session) {
    const Point origin = pageAxes(session.state.axes).origin;
    turnTowardsTarget(session, origin, session.state.grabIndex);
    applyToAxes(session);
}

void dragDialog(ToolSession& session) {
    const AIPoint from = viewPixelOf(session.view, session.state.previousCursor);
    const AIPoint to = viewPixelOf(session.view, session.state.cursor);
    moveDialog(session, {to.h - from.h, to.v - from.v});
}

void dragNothing(ToolSession&) {}

using Drag = void (*)(ToolSession&);
constexpr std::array<Drag, 8> kDrags{
    dragNewAxes,     // Canvas
    dragNothing,     // Sector
    dragNothing,     // SectorPicked
    dragAxis,        // Axis
    dragOrigin,      // Origin
    dragDialog,      // DialogTitle
    updateHoverItem, // DialogButton
    dragNothing,     // LayerLocked
};

/// Step by step; what the host is told of a drag it takes back before the next message, so that
/// each builds anew from where the press was.
void drag(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    if (shapesAxes(state.zone) && session.keys.isDown(Key::Escape)) return escape(session);
    changeCountByKeys(session);
    toggleSmartGuides(session, message);
    if (state.zone == ToolZone::Axis && session.keys.isDown(Key::A)) setConstrainAngle(session);
    if (!state.dragging && !beginsDrag(state)) return;
    if (!state.dragging) beginDrag(session);
    ai::check(ai::suites.undo->UndoChanges());
    if (isOnAxes(state.zone) && !state.reposition) takeAxesOffLayer(session);
    findDragTarget(session, message);
    kDrags.at(static_cast<std::size_t>(state.zone))(session);
    showZoneCursor(session);
    invalidateBetween(session, state.previousCursor, state.cursor);
}

} // namespace

void mouseDrag(ToolSession& session, const AIToolMessage& message) {
    if (session.state.cancelled) return;
    storeCursor(session.state, message.cursor);
    inGesture(session, [&] { drag(session, message); });
}

} // namespace facetta
