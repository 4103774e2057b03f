#include "tool/handlers/ToolSelection.h"

#include "tool/Zones.h"
#include "tool/axes/FollowDocument.h"
#include "tool/drawing/Preview.h"
#include "tool/handlers/Gesture.h"

namespace facetta {

void selectTool(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    endLostGesture(state);
    happen(state, Event::ToolTaken);
    state.secondClick = false;
    state.cursor = message.cursor;
    followDocument(session);
    session.updatePanel();
}

void deselectTool(ToolSession& session) {
    ToolState& state = session.state;
    if (buttonIsDown(state)) abandonGesture(session);
    state.gesture.reset(); // no release will come that counts
    happen(state, Event::ToolPutAway);
    showLayerAxes(session);
    findZone(session);
    clearPreview(state);
    redrawOverlay(session.view);
    session.updatePanel();
}

} // namespace facetta
