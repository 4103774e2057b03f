#include "tool/Gesture.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "tool/CurrentAxes.h"
#include "tool/LayerEdit.h"
#include "tool/Reposition.h"

namespace facetta {
namespace {

void restorePressState(ToolSession& session) {
    ToolState& state = session.state;
    state.axes = state.dragBackup;
    state.committed = state.axes.onLayer;
    // Axes that were a layer's at the press were not being edited then.
    if (state.axes.onLayer) endLayerEdit(state);
    endReposition(state);
    if (state.axes.axisCount != 0) rememberAsDefault(session);
}

} // namespace

void cancelGesture(ToolSession& session) {
    session.state.cancelled = true;
    ai::check(ai::suites.undo->UndoChanges());
    restorePressState(session);
}

void abandonGesture(ToolSession& session) noexcept {
    session.state.cancelled = true;
    // Where this fails as well, the user's own undo takes the gesture back.
    static_cast<void>(ai::suites.undo->UndoChanges());
    restorePressState(session);
}

} // namespace facetta
