#include "tool/snapping/DragTarget.h"

#include "host/Error.h"
#include "host/MessageNames.h"
#include "host/Suites.h"
#include "host/suites/AICursorSnapSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIPreferenceSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/Zones.h"
#include "tool/snapping/Constraints.h"
#include "tool/snapping/CursorSnap.h"
#include "tool/snapping/PerpendicularSnap.h"
#include "tool/snapping/SegmentSnap.h"

#include <cmath>
#include <utility>

namespace facetta {
namespace {

using platform::Key;

constexpr double kDegreesPerRadian = 180.0 / kPi;

/// Does the drag turn a line about the origin? Else it moves the origin.
bool turns(const ToolSession& session) {
    const ToolZone zone = session.state.zone;
    return zone == ToolZone::Axis ||
           (zone == ToolZone::Canvas && !session.preferences.initialDragMovesOrigin);
}

/// The point that a dragged line turns about.
Point pivotOf(const ToolState& state) {
    return state.zone == ToolZone::Canvas ? widen(state.anchor) : pageAxes(state.axes).origin;
}

/// True for the first message with the key down.
bool firstOfPress(bool& latch) { return !std::exchange(latch, true); }

void show(ToolSession& session, HintId id) { showHint(session.state.hint, id, platform::ticks()); }

/// A key has come up: the hint is that of another key still held, or goes.
void fallBack(ToolSession& session, Key other, HintId hint) {
    if (turns(session) && session.keys.isDown(other))
        show(session, hint);
    else
        hideHint(session.state.hint);
}

} // namespace

void findDragTarget(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    if (!shapesAxes(state.zone)) {
        state.snapped = state.target = message.cursor;
        return;
    }
    state.previousSnapped = state.snapped;
    snapByHost(session, message);
    updateOverrideHint(session);
    snapToPerpendicular(session);
    if (!state.perpendicularSnapFound) snapToPath(session);
    const Vector movement = takeTarget(session);
    moveWithSpace(session, movement);
    constrainTurning(session);
    constrainOrigin(session);
    releaseShift(session);
}

void snapByHost(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    state.snapped = state.smartGuidesSuppressed
                        ? message.cursor
                        : snapped(state.snapPointForm, session.view.handle, message.cursor,
                                  message.event, kSnapWhileDragging);
}

void updateOverrideHint(ToolSession& session) {
    bool& latch = session.state.latches.control;
    const bool overrides =
        turns(session) && session.keys.isDown(Key::Control) && !session.keys.isDown(Key::Shift);
    if (overrides) {
        if (firstOfPress(latch)) show(session, HintId::OverrideSnapping);
    } else if (std::exchange(latch, false)) {
        hideHint(session.state.hint);
    }
}

void snapToPerpendicular(ToolSession& session) {
    ToolState& state = session.state;
    state.perpendicularSnapFound = false;
    const bool wanted = session.preferences.snapPerpendicular != session.keys.isDown(Key::Control);
    if (!wanted || !turns(session) || session.keys.isDown(Key::Shift)) return;
    const Point cursor = widen(state.cursor);
    const PerpendicularSnap snap =
        findPerpendicular(pageAxes(state.axes).origin, cursor, state.snapDistance);
    if (!snap.point) return;
    state.perpendicularSnapFound = true;
    state.snapped = narrow(*snap.point);
}

void snapToPath(ToolSession& session) {
    AIRealPoint& snapped = session.state.snapped;
    if (const auto place = findPlaceOnPath(widen(snapped))) snapped = narrow(*place);
}

Vector takeTarget(ToolSession& session) {
    ToolState& state = session.state;
    state.target = state.snapped;
    return widen(state.snapped) - widen(state.previousSnapped);
}

void moveWithSpace(ToolSession& session, Vector movement) {
    ToolState& state = session.state;
    if (!turns(session)) return;
    if (!session.keys.isDown(Key::Space)) {
        if (std::exchange(state.latches.space, false))
            fallBack(session, Key::Shift, HintId::ConstrainAngle);
        return;
    }
    if (firstOfPress(state.latches.space)) show(session, HintId::MoveOrigin);
    if (state.zone == ToolZone::Canvas) {
        state.anchor = narrow(widen(state.anchor) + movement);
        return;
    }
    // The origin is hardened: there y runs down.
    const Point moved = hardOriginOf(state.axes) + Vector{movement.x, -movement.y};
    const Point origin = clampToCanvas(moved);
    state.axes.originX = origin.x;
    state.axes.originY = origin.y;
}

void constrainTurning(ToolSession& session) {
    ToolState& state = session.state;
    if (!turns(session) || !session.keys.isDown(Key::Shift)) return;
    if (firstOfPress(state.latches.shift)) show(session, HintId::ConstrainAngle);
    const Point pivot = pivotOf(state);
    const Point free = widen(state.target);
    const double degrees = session.host.constrainAngle;
    const Constrained constrained = constrain(pivot, free, degrees);
    state.constrainedAngle = constrained.angle;
    // As far as the projection, but in the direction of the free point as counted from the
    // constrain angle: that is the rule, not an oversight. The axes take their angle from
    // `constrainedAngle`.
    const double counted = directionTo(pivot, free) - degrees / kDegreesPerRadian;
    const double reach = distance(pivot, constrained.target);
    state.target = narrow(pivot + reach * direction(counted));
}

void constrainOrigin(ToolSession& session) {
    ToolState& state = session.state;
    if (turns(session) || !session.keys.isDown(Key::Shift)) return;
    if (firstOfPress(state.latches.shift)) show(session, HintId::ConstrainOrigin);
    const Constrained constrained =
        constrain(widen(state.originStart), widen(state.target), session.host.constrainAngle);
    state.constrainedAngle = constrained.angle;
    state.target = narrow(constrained.target);
}

void releaseShift(ToolSession& session) {
    if (session.keys.isDown(Key::Shift)) return;
    if (std::exchange(session.state.latches.shift, false))
        fallBack(session, Key::Space, HintId::MoveOrigin);
}

void toggleSmartGuides(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    if (!session.keys.isDown(Key::U)) {
        state.latches.smartGuides = false;
        return;
    }
    const bool elsewhere = state.zone == ToolZone::Sector || state.zone == ToolZone::DialogTitle ||
                           state.zone == ToolZone::DialogButton;
    if (elsewhere || ai::suites.cursorSnap->UseSmartGuides(session.view.handle) == 0) return;
    if (!firstOfPress(state.latches.smartGuides)) return;
    state.smartGuidesSuppressed = !state.smartGuidesSuppressed;
    if (!state.smartGuidesSuppressed) return show(session, HintId::SmartGuidesEnabled);
    show(session, HintId::SmartGuidesDisabled);
    hideSnapFeedback(state.snapPointForm, session.view.handle, message.event);
}

void setConstrainAngle(ToolSession& session) {
    ToolState& state = session.state;
    const PageAxes axes = pageAxes(state.axes);
    const double line = normaliseAngle(axes.angle + state.grabIndex * sectorAngle(axes));
    const double degrees = line * kDegreesPerRadian;
    constexpr const char* kOfTheHost = nullptr; // the application's own preferences
    const struct {
        const char* key;
        double value;
    } rows[] = {
        {kConstrainAnglePreference, degrees},
        {"constrain/cos", std::cos(line)},
        {"constrain/sin", std::sin(line)},
    };
    for (const auto& row : rows)
        ai::check(ai::suites.preference->PutRealPreference(kOfTheHost, row.key, row.value));
    session.host.constrainAngle = degrees;
    show(session, HintId::SetConstrainAngle);
    ai::check(ai::suites.notifier->Notify(kPreferenceChangedNotifier, nullptr));
}

} // namespace facetta
