#include "tool/handlers/Gesture.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/LiveLayers.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"

namespace facetta {
namespace {

void returnToPress(ToolSession& session) {
    cancelPress(session.state);
    hideHint(session.state.hint);
    if (session.state.axes.axisCount != 0) rememberAsDefault(session);
}

} // namespace

void takeBack(ToolSession& session) {
    ai::check(ai::suites.undo->UndoChanges());
    noteTakenBack(session.mirroring.live);
    returnToPress(session);
}

void abandonGesture(ToolSession& session) noexcept {
    // Where this fails as well, the user's own undo takes the gesture back.
    static_cast<void>(ai::codeOf([&] {
        ai::check(ai::suites.undo->UndoChanges());
        noteTakenBack(session.mirroring.live);
        return kNoErr;
    }));
    returnToPress(session);
}

bool gestureGoesOn(ToolSession& session) {
    ToolState& state = session.state;
    if (!buttonIsDown(state)) return false;
    const Place now = fetchPlace();
    if (gestureMayGoOn(state.gesture->place, now)) return true;
    // The host undoes in the document in front.
    if (now.document == state.gesture->place.document) takeBack(session);
    followDocument(session);
    if (buttonIsDown(state)) takeBack(session); // the host could not tell just now
    return false;
}

void endLostGesture(ToolState& state) {
    cancelPress(state);
    state.gesture.reset();
}

} // namespace facetta
