#pragma once

/// From the cursor to the place that a drag applies to the axes.
///
///   1. The host snaps the cursor (`snapByHost`).
///   2. The hint tells that Ctrl turns the next step about (`tellOfOverride`).
///   3. A dragged axis snaps to where a path is perpendicular to it (`snapToPerpendicular`); else
///   4. to the path under it (`snapToPath`).
///   5. That is the target, and the way from the one before it is the movement.
///   6. With Space held the axes move along with it and do not turn (`moveWithSpace`).
///   7. With Shift held a dragged axis turns in steps (`constrainTurning`),
///   8. and a dragged origin moves along directions in the same steps (`constrainOrigin`).
///   9. The hint of Shift goes when it comes up (`releaseShift`).
///
/// Each step takes what the steps before it have found and returns it with what it has found
/// itself; none changes anything else. Positions are in page coordinates; angles grow
/// counter-clockwise there. All functions throw `ai::Error`.

#include "platform/Platform.h"
#include "symmetry/geometry/Geometry.h"
#include "tool/ToolState.h"
#include "tool/snapping/CursorSnap.h"

#include <optional>

namespace facetta {

/// What a message of a drag starts from.
struct Drag {
    bool turns;      ///< a line about `pivot`; else the origin is moved
    bool movesPivot; ///< the pivot is kept on the canvas: it is an origin already
    Point pivot;     ///< what a dragged line turns about
    Point originStart;
    Point previousSnapped; ///< of the message before
    KeyLatches latches;
    double snapDistance;       ///< points
    double constrainAngle;     ///< the host's, in degrees
    bool snapToPerpendiculars; ///< unless Ctrl turns it about
    bool suppressed;           ///< smart guides are
};

/// What a message of a drag leads to.
struct DragTarget {
    Point snapped; ///< what the movement of the next message counts from
    Point target;
    Point pivot;        ///< moved along, while Space is held
    bool moves = false; ///< it is held
    bool perpendicularSnapFound = false;
    std::optional<double> constrainedAngle; ///< radians; the direction Shift allows
    KeyLatches latches;
    std::optional<HintId> hint; ///< to be shown now; `None` hides what is shown
};

/// All the steps, for a drag that makes or changes axes.
[[nodiscard]] DragTarget findDragTarget(const Drag& drag, AIRealPoint cursor,
                                        const CursorSnap& host, const platform::KeyState& keys);

} // namespace facetta
