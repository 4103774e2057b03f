#include "tool/NumericEdit.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "tool/CurrentAxes.h"
#include "tool/LayerEdit.h"
#include "tool/Reposition.h"

namespace facetta {
namespace {

/// Keeps the on-canvas dialog away while the other one is open.
class DialogOpen {
public:
    explicit DialogOpen(ModalDialogs& dialogs) : dialogs_(dialogs) { dialogs_.open = true; }
    ~DialogOpen() { dialogs_.open = false; }
    DialogOpen(const DialogOpen&) = delete;
    DialogOpen& operator=(const DialogOpen&) = delete;

private:
    ModalDialogs& dialogs_;
};

DialogResult askForAxes(ToolSession& session) {
    const DialogOpen open(session.dialogs);
    return session.dialogs.editAxes();
}

void prepare(ToolSession& session) {
    ToolState& state = session.state;
    endReposition(state); // Alt counts now, and not when the button went down
    if (!state.axes.onLayer) return;
    if (session.keys.isDown(platform::Key::Alt)) return beginReposition(state);
    beginLayerEdit(session, state.axes);
    takeAxesOffLayer(session);
}

/// The press changed nothing, so what is undone is the dialog's and what was done to open it.
void takeBack(ToolSession& session, const SymmetryAxes& before) {
    ToolState& state = session.state;
    state.axes = before;
    if (!before.onLayer) return;
    ai::check(ai::suites.undo->UndoChanges());
    endReposition(state);
    endLayerEdit(state);
    state.committed = true;
    session.updatePanel();
}

void keep(ToolSession& session) {
    ToolState& state = session.state;
    if (state.reposition) return keepReposition(state);
    renewGuides(state, state.axes);
    state.zone = ToolZone::Axis;
    session.updatePanel();
}

} // namespace

void editAxesByNumbers(ToolSession& session) {
    const SymmetryAxes before = session.state.axes;
    prepare(session);
    if (askForAxes(session) == DialogResult::Cancel)
        takeBack(session, before);
    else
        keep(session);
    axesChanged(session);
}

} // namespace facetta
