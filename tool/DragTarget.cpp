#include "tool/DragTarget.h"

#include "symmetry/ArtSpace.h"
#include "tool/Constraints.h"
#include "tool/CursorSnap.h"
#include "tool/Zones.h"

namespace facetta {
namespace {

bool movesOrigin(const ToolSession& session) {
    return session.state.zone == ToolZone::Origin ||
           (session.state.zone == ToolZone::Canvas && session.preferences.initialDragMovesOrigin);
}

/// The fixed point of the constraint.
Point baseOf(const ToolSession& session) {
    const ToolState& state = session.state;
    if (movesOrigin(session)) return widen(state.originStart);
    return state.zone == ToolZone::Canvas ? widen(state.anchor)
                                          : originOf(inArtSpace(state.axes));
}

} // namespace

void findDragTarget(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    if (!shapesAxes(state.zone)) return;
    state.previousSnapped = state.snapped;
    state.snapped = snapped(state.snapPointForm, session.view.handle, message.cursor, message.event,
                            kSnapWhileDragging);
    state.target = state.snapped;
    if (!session.keys.isDown(platform::Key::Shift)) return;
    const Constrained constrained =
        constrain(baseOf(session), widen(state.target), session.host.constrainAngle);
    state.constrainedAngle = constrained.angle;
    if (movesOrigin(session)) state.target = narrow(constrained.target);
}

} // namespace facetta
