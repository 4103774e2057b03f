#include "tool/axes/NumericEdit.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/LayerEdit.h"
#include "tool/axes/Reposition.h"

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

/// What the dialog is about to change, and in what state the tool was before.
void prepare(ToolSession& session) {
    ToolState& state = session.state;
    if (!axesOnLayer(state)) return;
    if (session.keys.isDown(platform::Key::Alt)) return beginReposition(state);
    beginLayerEdit(session, state.axes);
    takeAxesOffLayer(session);
}

/// The press changed nothing, so what is undone is the dialog's and what was done to open it.
void takeBack(ToolSession& session, const Holding& before) {
    const bool changedLayer = session.state.activity != before.activity;
    if (changedLayer) ai::check(ai::suites.undo->UndoChanges());
    hold(session.state, before);
    if (changedLayer) session.updatePanel();
}

void keep(ToolSession& session) {
    ToolState& state = session.state;
    if (repositionMode(state)) return keepReposition(state);
    renewGuides(state);
    state.zone = ToolZone::Axis;
    session.updatePanel();
}

} // namespace

void editAxesByNumbers(ToolSession& session) {
    const Holding before = holdingOf(session.state);
    prepare(session);
    if (askForAxes(session) == DialogResult::Cancel)
        takeBack(session, before);
    else
        keep(session);
    axesChanged(session);
}

} // namespace facetta
