#include "tool/axes/NumericEdit.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UndoText.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/LiveLayers.h"
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
    return session.dialogs.editAxes(session);
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
    if (changedLayer) {
        ai::check(ai::suites.undo->UndoChanges());
        noteTakenBack(session.mirroring.live);
    }
    hold(session.state, before);
}

void keep(ToolSession& session) {
    ToolState& state = session.state;
    if (repositionMode(state)) {
        keepReposition(state);
        return ai::nameUndoStep("Reposition Symmetry Axes");
    }
    renewGuides(state);
    state.zone = ToolZone::Axis;
    ai::nameUndoStep("Edit Symmetry Axes");
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
    session.updatePanel();
}

void showEditedAxes(ToolSession& session) {
    if (repositionMode(session.state)) {
        // The art is moved from where it lay when the dialog opened, each time.
        ai::check(ai::suites.undo->UndoChanges());
        carryLayerArt(session.state);
    }
    axesChanged(session);
    ai::check(ai::suites.document->RedrawDocument());
    session.updatePanel();
}

void editOrigin(ToolSession& session, Point hard) {
    session.state.axes.originX = hard.x;
    session.state.axes.originY = hard.y;
    showEditedAxes(session);
}

void editAngle(ToolSession& session, double radians) {
    session.state.axes.angle = normaliseAngle(radians);
    session.preferences.angle = session.state.axes.angle;
    showEditedAxes(session);
}

void editCount(ToolSession& session, int count) {
    session.state.axes.axisCount = count;
    session.preferences.count = count;
    showEditedAxes(session);
}

} // namespace facetta
