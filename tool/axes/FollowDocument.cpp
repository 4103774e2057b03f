#include "tool/axes/FollowDocument.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentSuite.h"
#include "symmetry/LayerAxesStore.h"
#include "tool/Zones.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/drawing/OnCanvasDialog.h"

#include <optional>
#include <utility>

namespace facetta {
namespace {

/// Do both stand for the same lines?
bool sameLines(const SymmetryAxes& a, const SymmetryAxes& b) {
    return a.originX == b.originX && a.originY == b.originY && a.angle == b.angle &&
           a.axisCount == b.axisCount;
}

/// At once, also of documents that were not in front: the next one may get the same handle.
void forgetClosedDocuments(ToolMemory& memory) {
    for (const AIDocumentHandle document : memory.documents()) {
        AIBoolean exists = 0;
        ai::check(ai::suites.document->DocumentExists(document, &exists));
        if (exists == 0) memory.forgetDocument(document);
    }
}

/// `holding` goes on, if `event` allows it.
void takeUp(ToolState& state, Event event, const Holding& holding) {
    if (!state.toolSelected) return;
    happen(state, event);
    if (state.activity == holding.activity) hold(state, holding);
}

/// The host cannot undo in a document that is not in front: axes that a drag has taken off their
/// layer there stay off it, and the edit waits.
void leaveGesture(ToolState& state) {
    if (layerEditInProgress(state))
        state.gesture->cancelled = true;
    else
        cancelPress(state);
}

void leaveDocument(ToolState& state, const Place& then) {
    if (axesPending(state)) state.memory.setAside(then.document, holdingOf(state));
    happen(state, Event::DocumentLeft);
}

void leaveLayer(ToolState& state, const Place& then) {
    if (layerEditInProgress(state)) state.memory.setAside(then.document, holdingOf(state));
    happen(state, Event::LayerLeft);
}

/// Pending axes that a step has used up are gone when it is redone, and back when it is undone.
void followHistory(ToolState& state, const Place& then, const Place& now) {
    happen(state, Event::HistoryMoved);
    const Moment* const moment = state.memory.momentAt(now);
    if (moment == nullptr) return;
    const Holding held = moment->holding;
    if (now.past > then.past && axesPending(state) && sameLines(moment->applied, state.axes))
        return happen(state, Event::AppliedToSelection);
    if (held.activity == Activity::AxesPending && !axesPending(state))
        return takeUp(state, Event::AxesOffered, held);
    if (held.activity != Activity::EditingLayerAxes) return;
    const LayerEdit* const edit = state.memory.edit(held.edit);
    if (edit == nullptr) return;
    if (edit->layer == now.topLayer) return takeUp(state, Event::EditTakenUp, held);
    // It goes on when its layer is current again; what was set aside of it before is outdated.
    static_cast<void>(state.memory.takeEdit(now.document, edit->layer));
    state.memory.setAside(now.document, held);
}

/// What the current layer carries is what counts.
void followLayer(ToolState& state, const Place& now) {
    const auto aside = [&] { return state.memory.takeEdit(now.document, now.topLayer); };
    SymmetryAxes stored;
    if (LayerAxesStore::read(now.layer, stored)) {
        static_cast<void>(aside()); // undone meanwhile
        happen(state, Event::LayerHasAxes);
        if (state.activity == Activity::ShowingLayerAxes) hold(state, {state.activity, stored});
        return;
    }
    happen(state, Event::LayerHasNoAxes);
    if (!state.toolSelected || axesPending(state)) return;
    if (const auto edit = aside()) takeUp(state, Event::EditTakenUp, *edit);
}

void compare(ToolState& state, const Place& then, const Place& now) {
    if (now.document != then.document) {
        leaveDocument(state, then);
        if (const auto pending = state.memory.takeNewAxes(now.document))
            takeUp(state, Event::AxesOffered, *pending);
    } else if (now.topLayer != then.topLayer) {
        leaveLayer(state, then);
    }
    forgetClosedDocuments(state.memory);
    if (historyMoved(then, now)) followHistory(state, then, now);
    if (now.document != nullptr) followLayer(state, now);
    if (!now.editable) happen(state, Event::LayerLocked);
    if (now.document != nullptr)
        state.memory.noteMoment(now, holdingOf(state), std::exchange(state.justApplied, {}));
    state.memory.forgetOldEdits(state.edit);
}

/// The button that mirrors the selection is dimmed while there is none.
void followSelection(ToolSession& session) {
    const std::optional<bool> wasEmpty = session.state.selection.forget();
    if (wasEmpty && dialogIsShown(session) && *wasEmpty != selectionEmpty(session.state))
        redrawDialog(session);
}

void followFrom(ToolSession& session, const Place& now) {
    ToolState& state = session.state;
    if (session.dialogs.open) return; // it is at work on the axes
    const Place then = state.place;
    if (buttonIsDown(state)) {
        if (now.document == state.gesture->place.document) return;
        leaveGesture(state);
    }
    const Holding before = holdingOf(state);
    state.place = now;
    compare(state, then, now);
    followSelection(session);
    findZone(session);
    if (before == holdingOf(state)) return;
    clearPreview(state);
    redrawOverlay(session.view);
    session.updatePanel();
}

} // namespace

void showLayerAxes(ToolSession& session) {
    ToolState& state = session.state;
    if (state.place.document != nullptr) followLayer(state, state.place);
}

void followDocument(ToolSession& session) { followFrom(session, fetchPlace()); }

void followIfElsewhere(ToolSession& session) {
    const Place now = fetchPlace();
    if (now != session.state.place) followFrom(session, now);
}

} // namespace facetta
