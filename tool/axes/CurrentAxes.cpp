#include "tool/axes/CurrentAxes.h"

#include "host/Error.h"
#include "symmetry/ArtSpace.h"
#include "tool/drawing/Preview.h"
#include "tool/snapping/CursorSnap.h"

namespace facetta {

void moveOriginTo(ToolState& state, Point point) {
    const Point origin = clampToCanvas(harden(point));
    state.axes.originX = origin.x;
    state.axes.originY = origin.y;
}

void previewAt(ToolSession& session, AIRealPoint point) {
    session.state.zone = ToolZone::Canvas;
    session.state.axes = {.angle = session.preferences.angle,
                          .axisCount = session.preferences.count};
    moveOriginTo(session.state, widen(point));
}

void axesChanged(ToolSession& session) {
    refreshPreview(session);
    redrawOverlay(session.view);
}

void rememberAsDefault(ToolSession& session) {
    session.preferences.angle = session.state.axes.angle;
    session.preferences.count = session.state.axes.axisCount;
}

AIRealPoint snapToAnything(ToolSession& session, const AIToolMessage& message) {
    return cursorSnap(session, message).snapped(message.cursor, kSnapToAnything);
}

} // namespace facetta
