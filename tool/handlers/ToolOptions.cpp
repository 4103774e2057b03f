#include "tool/handlers/ToolOptions.h"

#include "tool/axes/Apply.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"

#include <algorithm>

namespace facetta {

using platform::Key;

void editOptions(ToolSession& session) {
    followDocument(session);
    const bool asksToApply = !session.keys.isDown(Key::Control) && !session.keys.isDown(Key::Shift);
    if (!axesPending(session.state) || !asksToApply) {
        session.dialogs.preferences(session);
        return;
    }
    applyAxes(session);
}

void changeAxisCount(ToolSession& session, int step) {
    SymmetryAxes& axes = session.state.axes;
    if (!axesOnLayer(session.state)) {
        const int count = axes.axisCount != 0 ? axes.axisCount : session.preferences.count;
        session.preferences.count = std::clamp(count + step, kFewestAxes, kMostAxes);
        if (axes.axisCount != 0) axes.axisCount = session.preferences.count;
        axesChanged(session);
    }
    session.updatePanel();
}

} // namespace facetta
