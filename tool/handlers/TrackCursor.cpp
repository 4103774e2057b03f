#include "tool/handlers/TrackCursor.h"

#include "tool/Zones.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"
#include "tool/drawing/Annotations.h"
#include "tool/handlers/Gesture.h"

namespace facetta {

void trackCursor(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    endLostGesture(state);
    storeCursor(state, message.cursor);
    followIfElsewhere(session);
    if (hasAxes(state)) {
        if (!state.preview.captured) axesChanged(session); // the art has changed
    } else if (state.activity == Activity::FollowingCursor && state.place.editable) {
        previewAt(session, snapToAnything(session, message));
        redrawOverlay(session.view);
    }
    updateZone(session);
    invalidateBetween(session, state.previousCursor, state.cursor);
}

} // namespace facetta
