#include "tool/snapping/DragTarget.h"

#include "symmetry/ArtSpace.h"
#include "tool/snapping/Constraints.h"
#include "tool/snapping/PerpendicularSnap.h"
#include "tool/snapping/SegmentSnap.h"

#include <utility>

namespace facetta {
namespace {

using platform::Key;
using platform::KeyState;

constexpr double kDegreesPerRadian = 180.0 / kPi;

/// True for the first message with the key down.
bool firstOfPress(bool& latch) { return !std::exchange(latch, true); }

/// A key has come up: the hint is that of another key still held, or goes.
HintId fallBack(const Drag& drag, bool otherKey, HintId hint) {
    return drag.turns && otherKey ? hint : HintId::None;
}

DragTarget snapByHost(const Drag& drag, AIRealPoint cursor, const CursorSnap& host) {
    DragTarget found;
    found.snapped = widen(drag.suppressed ? cursor : host.snapped(cursor, kSnapWhileDragging));
    found.pivot = drag.pivot;
    found.latches = drag.latches;
    return found;
}

DragTarget tellOfOverride(DragTarget found, const Drag& drag, const KeyState& keys) {
    const bool overrides = drag.turns && keys.isDown(Key::Control) && !keys.isDown(Key::Shift);
    if (overrides && firstOfPress(found.latches.control)) found.hint = HintId::OverrideSnapping;
    if (!overrides && std::exchange(found.latches.control, false)) found.hint = HintId::None;
    return found;
}

DragTarget snapToPerpendicular(DragTarget found, const Drag& drag, Point cursor,
                               const KeyState& keys) {
    const bool wanted = drag.snapToPerpendiculars != keys.isDown(Key::Control);
    if (!wanted || !drag.turns || keys.isDown(Key::Shift)) return found;
    const PerpendicularSnap snap = findPerpendicular(drag.pivot, cursor, drag.snapDistance);
    if (!snap.point) return found;
    found.perpendicularSnapFound = true;
    found.snapped = rounded(*snap.point);
    return found;
}

DragTarget snapToPath(DragTarget found) {
    if (found.perpendicularSnapFound) return found;
    if (const auto place = findPlaceOnPath(found.snapped)) found.snapped = rounded(*place);
    return found;
}

/// The construction goes along by as much as the target has moved.
DragTarget moveWithSpace(DragTarget found, const Drag& drag, const KeyState& keys) {
    if (!drag.turns) return found;
    if (!keys.isDown(Key::Space)) {
        if (std::exchange(found.latches.space, false))
            found.hint = fallBack(drag, keys.isDown(Key::Shift), HintId::ConstrainAngle);
        return found;
    }
    if (firstOfPress(found.latches.space)) found.hint = HintId::MoveOrigin;
    found.moves = true;
    const Point moved = drag.pivot + (found.snapped - drag.previousSnapped);
    found.pivot = drag.movesPivot ? soften(clampToCanvas(harden(moved))) : rounded(moved);
    return found;
}

DragTarget constrainTurning(DragTarget found, const Drag& drag, const KeyState& keys) {
    if (!drag.turns || !keys.isDown(Key::Shift)) return found;
    if (firstOfPress(found.latches.shift)) found.hint = HintId::ConstrainAngle;
    const Constrained held = constrain(found.pivot, found.target, drag.constrainAngle);
    found.constrainedAngle = held.angle;
    // The axes take their angle from `constrainedAngle` alone. The target is as far away as the
    // projection, but in the direction of the free point as counted from the constrain angle, so
    // that it does not jump from step to step as the line does.
    const double counted =
        directionTo(found.pivot, found.target) - drag.constrainAngle / kDegreesPerRadian;
    const double reach = distance(found.pivot, held.target);
    found.target = rounded(found.pivot + reach * direction(counted));
    return found;
}

DragTarget constrainOrigin(DragTarget found, const Drag& drag, const KeyState& keys) {
    if (drag.turns || !keys.isDown(Key::Shift)) return found;
    if (firstOfPress(found.latches.shift)) found.hint = HintId::ConstrainOrigin;
    found.target = rounded(constrain(drag.originStart, found.target, drag.constrainAngle).target);
    return found;
}

DragTarget releaseShift(DragTarget found, const Drag& drag, const KeyState& keys) {
    if (!keys.isDown(Key::Shift) && std::exchange(found.latches.shift, false))
        found.hint = fallBack(drag, keys.isDown(Key::Space), HintId::MoveOrigin);
    return found;
}

} // namespace

DragTarget findDragTarget(const Drag& drag, AIRealPoint cursor, const CursorSnap& host,
                          const KeyState& keys) {
    DragTarget found = snapByHost(drag, cursor, host);
    found = tellOfOverride(found, drag, keys);
    found = snapToPerpendicular(found, drag, widen(cursor), keys);
    found = snapToPath(found);
    found.target = found.snapped;
    found = moveWithSpace(found, drag, keys);
    found = constrainTurning(found, drag, keys);
    found = constrainOrigin(found, drag, keys);
    return releaseShift(found, drag, keys);
}

} // namespace facetta
